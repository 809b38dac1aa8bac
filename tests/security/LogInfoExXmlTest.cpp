#include "security/LogInfoExXml.h"

#include "tests/security/TimeSample.h"
#include "tests/support/Documents.h"

#include <type_traits>

namespace
{

LogInfoEx sample()
{
    LogInfoEx info;
    info.setDeviceId("D-17");
    info.setDeviceIp("192.0.2.17");
    info.setCameraId(3);
    info.setUserName("operator");
    info.setMajorType(4);
    info.setMinorType(5);
    info.setLogTime(sampleTime());
    info.setLogData("Changed");
    info.setOldParamInfo("Name: Gate");
    info.setNewParamInfo("Name: North gate");
    return info;
}

void expectInfo(const LogInfoEx& expected, const LogInfoEx& info)
{
    EXPECT_EQ(expected.getDeviceId(), info.getDeviceId());
    EXPECT_EQ(expected.getDeviceIp(), info.getDeviceIp());
    EXPECT_EQ(expected.getCameraId(), info.getCameraId());
    EXPECT_EQ(expected.getUserName(), info.getUserName());
    EXPECT_EQ(expected.getMajorType(), info.getMajorType());
    EXPECT_EQ(expected.getMinorType(), info.getMinorType());
    expectTime(expected.getLogTime(), info.getLogTime());
    EXPECT_EQ(expected.getLogData(), info.getLogData());
    EXPECT_EQ(expected.getOldParamInfo(), info.getOldParamInfo());
    EXPECT_EQ(expected.getNewParamInfo(), info.getNewParamInfo());
}

} // namespace

static_assert(!std::is_convertible<LogInfoExXml*, IDomainXml*>::value, "is not to be held by its base");

TEST(LogInfoExXml, Writes)
{
    LogInfoExXml codec;
    codec.setEndFlag(true);
    codec.setLogInfoExList({sample(), LogInfoEx()});
    EXPECT_TRUE(matchesGolden(written(codec), "security/LogInfoExXml.document.xml"));
}

TEST(LogInfoExXml, WritesAnEmptyList)
{
    LogInfoExXml codec;
    EXPECT_EQ("<LogInfoExList SendEndFlag=\"false\" />\n", written(codec));
}

TEST(LogInfoExXml, ReadsBehindWhatTheListHolds)
{
    LogInfoEx before;
    before.setDeviceId("before");
    LogInfoExXml codec;
    codec.setLogInfoExList({before});
    ASSERT_TRUE(reads(codec, golden("security/LogInfoExXml.document.xml")));
    EXPECT_TRUE(codec.getEndFlag());
    ASSERT_EQ(3U, codec.getLogInfoExList().size());
    expectInfo(before, codec.getLogInfoExList()[0]);
    expectInfo(sample(), codec.getLogInfoExList()[1]);
    expectInfo(LogInfoEx(), codec.getLogInfoExList()[2]);
}

TEST(LogInfoExXml, KeepsTheFlagThatIsMissing)
{
    LogInfoExXml codec;
    EXPECT_FALSE(codec.getEndFlag());
    codec.setEndFlag(true);
    ASSERT_TRUE(reads(codec, "<LogInfoExList />"));
    EXPECT_TRUE(codec.getEndFlag());
}

TEST(LogInfoExXml, ReadsTheFlagOfABatchThatIsNotTheLast)
{
    LogInfoExXml codec;
    codec.setEndFlag(true);
    ASSERT_TRUE(reads(codec, "<LogInfoExList SendEndFlag='false' />"));
    EXPECT_FALSE(codec.getEndFlag());
}

TEST(LogInfoExXml, GivesANewEntryForOneWithoutAttributes)
{
    LogInfoExXml codec;
    ASSERT_TRUE(reads(codec, "<LogInfoExList><LogInfoEx /></LogInfoExList>"));
    ASSERT_EQ(1U, codec.getLogInfoExList().size());
    expectInfo(LogInfoEx(), codec.getLogInfoExList()[0]);
}

TEST(LogInfoExXml, ReadsATimeWithoutMinuteAndSecond)
{
    LogInfoExXml codec;
    ASSERT_TRUE(reads(codec, "<LogInfoExList><LogInfoEx><LogTime Hour='7' /></LogInfoEx></LogInfoExList>"));
    TimeStruct time;
    time.setHour(7);
    expectTime(time, codec.getLogInfoExList().at(0).getLogTime());
}

TEST(LogInfoExXml, WalksOnFromTheFirstEntryOverElementsOfAnyName)
{
    LogInfoExXml codec;
    ASSERT_TRUE(reads(codec, "<LogInfoExList>text<!--LogInfoEx--><Other CameraId='1' /><LogInfoEx CameraId='2' />"
                             "<!-- -->text<Other CameraId='3' /></LogInfoExList>"));
    ASSERT_EQ(2U, codec.getLogInfoExList().size());
    EXPECT_EQ(2, codec.getLogInfoExList()[0].getCameraId());
    EXPECT_EQ(3, codec.getLogInfoExList()[1].getCameraId());
}
