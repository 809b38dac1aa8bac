#include "snapshot/SnapshotFileXml.h"

#include "tests/snapshot/SnapshotSample.h"
#include "tests/support/Documents.h"

#include <limits>

namespace
{

/// A picture of the device and camera of the sample, and nothing else.
SnapshotFile device()
{
    return emptyPicture("d1", "10.0.0.9", 3);
}

std::string nameOf(long long time)
{
    SnapshotFile file = device();
    file.setSnapshotFileTime(time);
    SnapshotFileXml::createSnapshotFileName(file);
    return file.getSnapshotFileName();
}

} // namespace

TEST(SnapshotFileXml, Writes)
{
    SnapshotFileXml codec;
    codec.setSnapshotFile(samplePicture());
    EXPECT_TRUE(matchesGolden(written(codec), "snapshot/SnapshotFileXml.document.xml"));
}

TEST(SnapshotFileXml, Reads)
{
    SnapshotFileXml codec;
    codec.setSnapshotFile(device());
    ASSERT_TRUE(reads(codec, golden("snapshot/SnapshotFileXml.document.xml")));
    expectPicture(samplePicture(), codec.getSnapshotFile());
}

TEST(SnapshotFileXml, NamesAFileWithoutADevice)
{
    SnapshotFileXml codec;
    ASSERT_TRUE(reads(codec, golden("snapshot/SnapshotFileXml.document.xml")));
    EXPECT_EQ("__0_20150302080907045_2.jpg", codec.getSnapshotFile().getSnapshotFileName());
}

TEST(SnapshotFileXml, LeavesWhatIsMissingAndNamesTheFile)
{
    SnapshotFile file = samplePicture();
    file.setSnapshotFileName("");
    SnapshotFileXml codec;
    codec.setSnapshotFile(file);
    ASSERT_TRUE(reads(codec, "<SnapshotFile />"));
    expectPicture(samplePicture(), codec.getSnapshotFile());
}

TEST(SnapshotFileXml, NamesAFileWithoutATime)
{
    SnapshotFileXml codec;
    codec.setSnapshotFile(device());
    ASSERT_TRUE(reads(codec, "<SnapshotFile snapshotPolicyType='2' />"));
    EXPECT_EQ(0, codec.getSnapshotFile().getSnapshotFileTime());
    EXPECT_EQ("d1_10.0.0.9_3_19700101000000000_2.jpg", codec.getSnapshotFile().getSnapshotFileName());
}

TEST(SnapshotFileXml, ReadsTimesThroughADouble)
{
    SnapshotFileXml codec;
    ASSERT_TRUE(reads(codec, "<SnapshotFile snapshotFileTime='1.5e12' />"));
    EXPECT_EQ(1500000000000, codec.getSnapshotFile().getSnapshotFileTime());

    SnapshotFileXml huge;
    ASSERT_TRUE(reads(huge, "<SnapshotFile snapshotFileTime='1e300' />"));
    EXPECT_EQ(std::numeric_limits<long long>::max(), huge.getSnapshotFile().getSnapshotFileTime());

    SnapshotFileXml bad;
    bad.setSnapshotFile(samplePicture());
    ASSERT_TRUE(reads(bad, "<SnapshotFile snapshotFileTime='noon' snapshotPolicyType='x' lockflag='x' "
                           "snapshotFileLength='x' />"));
    EXPECT_EQ(0, bad.getSnapshotFile().getSnapshotFileTime());
    EXPECT_EQ(0, bad.getSnapshotFile().getSnapshotPolicyType());
    EXPECT_FALSE(bad.getSnapshotFile().getLockFlag());
    EXPECT_EQ(0, bad.getSnapshotFile().getSnapshotFileLength());
}

TEST(SnapshotFileXml, ReplacesTheAlarmsByAListThatHasItems)
{
    SnapshotFileXml codec;
    codec.setSnapshotFile(samplePicture());
    ASSERT_TRUE(reads(codec, "<SnapshotFile><AlarmExTypeList><AlarmExType AlarmTypeName='a' />"
                             "<Other AlarmTypeName='b' /></AlarmExTypeList></SnapshotFile>"));
    expectAlarmTypes({alarmType("a", 0, 0), alarmType("b", 0, 0)}, codec.getSnapshotFile().getAlarmExTypeList());

    SnapshotFileXml other;
    other.setSnapshotFile(samplePicture());
    ASSERT_TRUE(reads(other, "<SnapshotFile><AlarmExTypeList><!--AlarmExType--><Other /></AlarmExTypeList>"
                             "</SnapshotFile>"));
    expectPicture(samplePicture(), other.getSnapshotFile());
}

TEST(SnapshotFileXml, ReadsACalendarWithoutMinuteAndSecond)
{
    TimeStruct expected;
    expected.setYear(2016);
    SnapshotFileXml codec;
    codec.setSnapshotFile(samplePicture());
    ASSERT_TRUE(reads(codec, "<SnapshotFile><SnapshotFileTimeStruct Year='2016' /></SnapshotFile>"));
    expectTime(expected, codec.getSnapshotFile().getStructSnapshotFileTime());
}

TEST(SnapshotFileXml, SplitsTheTimeOfAName)
{
    EXPECT_EQ("d1_10.0.0.9_3_20150302080907045_0.jpg", nameOf(1425283747045));
    EXPECT_EQ("d1_10.0.0.9_3_20150302080907000_0.jpg", nameOf(1425283747000));
    EXPECT_EQ("d1_10.0.0.9_3_19700101000000-45_0.jpg", nameOf(-45));
}

TEST(SnapshotFileXml, BoundsEveryName)
{
    for (const long long time : {std::numeric_limits<long long>::min(), std::numeric_limits<long long>::max()})
        EXPECT_EQ(0U, nameOf(time).find("d1_10.0.0.9_3_")) << nameOf(time);

    const std::string letters(500, 'x');
    SnapshotFile file = device();
    file.setDeviceIP(letters);
    SnapshotFileXml codec;
    codec.setSnapshotFile(file);
    ASSERT_TRUE(reads(codec, "<SnapshotFile />"));
    EXPECT_EQ("d1_" + letters.substr(0, 252), codec.getSnapshotFile().getSnapshotFileName());

    file.setDeviceIP(letters.substr(0, 255 - std::string("d1__3_19700101000000000_0.jpg").size()));
    SnapshotFileXml::createSnapshotFileName(file);
    EXPECT_EQ(255U, file.getSnapshotFileName().size());
    EXPECT_EQ(".jpg", file.getSnapshotFileName().substr(251));
}

TEST(SnapshotFileXml, RefusesToReadWithoutAnElement)
{
    SnapshotFileXml codec;
    EXPECT_FALSE(codec.parseXmlNode());
    TiXmlComment comment;
    codec.setXmlNode(&comment);
    EXPECT_FALSE(codec.parseXmlNode());
    EXPECT_EQ("", codec.getSnapshotFile().getSnapshotFileName());
}

TEST(SnapshotFileXml, ConvertsNumbers)
{
    std::string text;
    EXPECT_TRUE(SnapshotFileXml().Int642Str(9007199254740993, text));
    EXPECT_EQ("9007199254740993", text);
    long long value = 7;
    EXPECT_TRUE(SnapshotFileXml().str2Int64(text, value));
    EXPECT_EQ(9007199254740992, value);
}
