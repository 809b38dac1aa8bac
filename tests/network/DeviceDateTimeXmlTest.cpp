#include "network/DeviceDateTimeXml.h"

#include "tests/support/Documents.h"

namespace
{

DeviceDateTime sample()
{
    DeviceDateTime dateTime;
    dateTime.setDeviceId("D-17");
    dateTime.setTimeZone(8);
    dateTime.setDataFormat(1);
    dateTime.setTimeFormat(2);
    dateTime.setDTSOpenFlag(3);
    dateTime.setBeginXun(4);
    dateTime.setBeginMonth(5);
    dateTime.setBeginWeekly(6);
    dateTime.setBeginWeekDays(7);
    dateTime.setBeginTime("02:00:00");
    dateTime.setEndXun(9);
    dateTime.setEndMonth(10);
    dateTime.setEndWeekly(11);
    dateTime.setEndWeekDays(12);
    dateTime.setEndTime("03:00:00");
    return dateTime;
}

void expectDateTime(const DeviceDateTime& expected, const DeviceDateTime& dateTime)
{
    EXPECT_EQ(expected.getDeviceId(), dateTime.getDeviceId());
    EXPECT_EQ(expected.getTimeZone(), dateTime.getTimeZone());
    EXPECT_EQ(expected.getDataFormat(), dateTime.getDataFormat());
    EXPECT_EQ(expected.getTimeFormat(), dateTime.getTimeFormat());
    EXPECT_EQ(expected.getDTSOpenFlag(), dateTime.getDTSOpenFlag());
    EXPECT_EQ(expected.getBeginXun(), dateTime.getBeginXun());
    EXPECT_EQ(expected.getBeginMonth(), dateTime.getBeginMonth());
    EXPECT_EQ(expected.getBeginWeekly(), dateTime.getBeginWeekly());
    EXPECT_EQ(expected.getBeginWeekDays(), dateTime.getBeginWeekDays());
    EXPECT_EQ(expected.getBeginTime(), dateTime.getBeginTime());
    EXPECT_EQ(expected.getEndXun(), dateTime.getEndXun());
    EXPECT_EQ(expected.getEndMonth(), dateTime.getEndMonth());
    EXPECT_EQ(expected.getEndWeekly(), dateTime.getEndWeekly());
    EXPECT_EQ(expected.getEndWeekDays(), dateTime.getEndWeekDays());
    EXPECT_EQ(expected.getEndTime(), dateTime.getEndTime());
}

} // namespace

TEST(DeviceDateTimeXml, Writes)
{
    DeviceDateTimeXml codec;
    codec.setDeviceDateTime(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/DeviceDateTimeXml.document.xml"));
}

TEST(DeviceDateTimeXml, Reads)
{
    DeviceDateTimeXml codec;
    ASSERT_TRUE(reads(codec, golden("network/DeviceDateTimeXml.document.xml")));
    expectDateTime(sample(), codec.getDeviceDateTime());
}

TEST(DeviceDateTimeXml, ResetsWhatIsMissing)
{
    DeviceDateTimeXml codec;
    codec.setDeviceDateTime(sample());
    ASSERT_TRUE(reads(codec, "<DeviceDateTime />"));
    expectDateTime(DeviceDateTime(), codec.getDeviceDateTime());
}

TEST(DeviceDateTimeXml, CarriesTheFlagAsANumberOfOneByte)
{
    DeviceDateTimeXml codec;
    codec.getDeviceDateTime().setDTSOpenFlag(255);
    EXPECT_NE(std::string::npos, written(codec).find(" DTSOpenFlag=\"255\""));

    DeviceDateTimeXml reader;
    ASSERT_TRUE(reads(reader, "<DeviceDateTime DTSOpenFlag='257' />"));
    EXPECT_EQ(1, reader.getDeviceDateTime().getDTSOpenFlag());
}

TEST(DeviceDateTimeXml, PassesOverTheSpellingsOfOtherDocuments)
{
    DeviceDateTimeXml codec;
    ASSERT_TRUE(reads(codec, "<DeviceDateTime DateFormat='7' DSTOpenFlag='7' />"));
    expectDateTime(DeviceDateTime(), codec.getDeviceDateTime());
}
