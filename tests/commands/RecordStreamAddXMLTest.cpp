#include "commands/RecordStreamAddXML.h"

#include "tests/support/Documents.h"

namespace
{

TimeStruct time(int zone, std::uint16_t saving, std::uint16_t year, std::uint16_t day, std::uint16_t dayOfWeek,
                std::uint16_t hour, std::uint16_t minute, std::uint16_t second, int milliseconds)
{
    TimeStruct time;
    time.setTimeZone(zone);
    time.setDaylightSavingTime(saving);
    time.setYear(year);
    time.setMonth(3);
    time.setDay(day);
    time.setDayOfWeek(dayOfWeek);
    time.setHour(hour);
    time.setMinute(minute);
    time.setSecond(second);
    time.setMilliseconds(milliseconds);
    return time;
}

std::vector<RecordInfo> sample()
{
    RecordInfo first;
    first.setDeviceId("D-17");
    first.setDeviceIP("192.0.2.17");
    first.setCameraId(3);
    first.setRecordBeginTime(1425283747);
    first.setRecordEndTime(1425373808);
    first.setLockFlag(true);
    first.setStructRecordBeginTime(time(-8, 1, 2015, 2, 6, 8, 9, 7, 999));
    first.setStructRecordEndTime(time(8, 0, 2016, 3, 2, 9, 10, 8, 1));

    RecordInfo second;
    second.setCameraId(4);
    return {first, second};
}

} // namespace

TEST(RecordStreamAddXML, Writes)
{
    RecordStreamAddXML codec;
    codec.setManagerId(1);
    codec.setDataChannelId(2);
    codec.setRecordInfoList(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "commands/RecordStreamAddXML.document.xml"));
}

TEST(RecordStreamAddXML, WritesAnEmptyList)
{
    RecordStreamAddXML codec;
    EXPECT_EQ("<RecordStreamAdd ManagerId=\"0\" DataChannelId=\"0\">\n"
              "\t<RecordInfoList ExtendField=\"0\" />\n"
              "</RecordStreamAdd>\n",
              written(codec));
}

TEST(RecordStreamAddXML, Reads)
{
    CapturedOutput output;
    RecordStreamAddXML codec;
    ASSERT_TRUE(reads(codec, golden("commands/RecordStreamAddXML.document.xml")));
    EXPECT_EQ(1, codec.getManagerId());
    EXPECT_EQ(2, codec.getDataChannelId());
    EXPECT_EQ("", output.text());

    ASSERT_EQ(2U, codec.getRecordInfoList().size());
    const RecordInfo& info = codec.getRecordInfoList()[0];
    EXPECT_EQ("D-17", info.getDeviceId());
    EXPECT_EQ("192.0.2.17", info.getDeviceIP());
    EXPECT_EQ(3, info.getCameraId());
    EXPECT_EQ(1425283747UL, info.getRecordBeginTime());
    EXPECT_EQ(1425373808UL, info.getRecordEndTime());
    EXPECT_TRUE(info.getLockFlag());
    EXPECT_FALSE(info.getAlarmFlag());
    EXPECT_EQ(2015, info.getStructRecordBeginTime().getYear());
    EXPECT_EQ(2016, info.getStructRecordEndTime().getYear());
    EXPECT_EQ(4, codec.getRecordInfoList()[1].getCameraId());
}

TEST(RecordStreamAddXML, IsZeroWhenNewAndLeavesWhatIsMissing)
{
    RecordStreamAddXML codec;
    ASSERT_TRUE(reads(codec, "<RecordStreamAdd />"));
    EXPECT_EQ(0, codec.getManagerId());
    EXPECT_EQ(0, codec.getDataChannelId());
    EXPECT_TRUE(codec.getRecordInfoList().empty());

    RecordStreamAddXML used;
    used.setManagerId(11);
    used.setDataChannelId(12);
    used.setRecordInfoList(sample());
    ASSERT_TRUE(reads(used, "<RecordStreamAdd />"));
    EXPECT_EQ(11, used.getManagerId());
    EXPECT_EQ(12, used.getDataChannelId());
    EXPECT_EQ(2U, used.getRecordInfoList().size());
}

TEST(RecordStreamAddXML, ReplacesTheRecordingsByAListThatIsThere)
{
    RecordStreamAddXML codec;
    codec.setRecordInfoList(sample());
    ASSERT_TRUE(reads(codec, "<RecordStreamAdd><RecordInfoList ExtendField='7'><RecordInfo CameraId='9' />"
                             "</RecordInfoList></RecordStreamAdd>"));
    ASSERT_EQ(1U, codec.getRecordInfoList().size());
    EXPECT_EQ(9, codec.getRecordInfoList()[0].getCameraId());
    EXPECT_NE(std::string::npos, written(codec).rfind("<RecordInfoList ExtendField=\"0\">"));

    RecordStreamAddXML other;
    other.setRecordInfoList(sample());
    ASSERT_TRUE(reads(other, "<RecordStreamAdd><RecordInfoList /></RecordStreamAdd>"));
    EXPECT_TRUE(other.getRecordInfoList().empty());
}

TEST(RecordStreamAddXML, PrintsALineForAMalformedText)
{
    for (const char* text : {"<RecordStreamAdd>", ""})
    {
        CapturedOutput output;
        RecordStreamAddXML codec;
        EXPECT_FALSE(reads(codec, text));
        EXPECT_EQ("m_objRecordStreamAddDoc.Error() \n", output.text()) << text;
    }
}

TEST(RecordStreamAddXML, RefusesAnotherRootInSilence)
{
    CapturedOutput output;
    RecordStreamAddXML codec;
    EXPECT_FALSE(reads(codec, "<RecordStreamAddCommand ManagerId='1' />"));
    EXPECT_EQ(0, codec.getManagerId());
    EXPECT_EQ("", output.text());
}
