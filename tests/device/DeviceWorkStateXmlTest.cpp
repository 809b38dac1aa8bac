#include "device/DeviceWorkStateXml.h"

#include "tests/device/StatisticSamples.h"
#include "tests/support/Documents.h"

namespace
{

template <class Record>
void expectAll(const std::vector<Record>& expected, const std::vector<Record>& list,
               void (*expectOne)(const Record&, const Record&))
{
    ASSERT_EQ(expected.size(), list.size());
    for (std::size_t number = 0; number < list.size(); ++number)
        expectOne(expected[number], list[number]);
}

DeviceWorkState sample()
{
    DeviceWorkState state;
    state.setCpuStatistic(sampleCpu());
    state.setMemStatistic(sampleMemory());
    state.setDiskStatisticList({sampleDisk(), DiskStatistic()});
    state.setVideoChannelStatisticList({sampleChannel()});
    state.setAlarmInStatisticList({sampleInput()});
    state.setAlarmOutStatisticList({sampleOutput()});
    return state;
}

void expectState(const DeviceWorkState& expected, const DeviceWorkState& state)
{
    expectCpu(expected.getCpuStatistic(), state.getCpuStatistic());
    expectMemory(expected.getMemStatistic(), state.getMemStatistic());
    expectAll(expected.getDiskStatisticList(), state.getDiskStatisticList(), expectDisk);
    expectAll(expected.getVideoChannelStatisticList(), state.getVideoChannelStatisticList(), expectChannel);
    expectAll(expected.getAlarmInStatisticList(), state.getAlarmInStatisticList(), expectInput);
    expectAll(expected.getAlarmOutStatisticList(), state.getAlarmOutStatisticList(), expectOutput);
}

} // namespace

TEST(DeviceWorkStateXml, Writes)
{
    DeviceWorkStateXml codec;
    codec.setDeviceWorkState(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/DeviceWorkStateXml.document.xml"));
}

TEST(DeviceWorkStateXml, Reads)
{
    DeviceWorkStateXml codec;
    ASSERT_TRUE(reads(codec, golden("device/DeviceWorkStateXml.document.xml")));
    expectState(sample(), codec.getDeviceWorkState());
}

TEST(DeviceWorkStateXml, LeavesWhatIsMissing)
{
    DeviceWorkStateXml codec;
    codec.setDeviceWorkState(sample());
    ASSERT_TRUE(reads(codec, "<DeviceWorkState />"));
    expectState(sample(), codec.getDeviceWorkState());
}

TEST(DeviceWorkStateXml, WritesEmptyLists)
{
    DeviceWorkStateXml codec;
    const std::string text = written(codec);
    for (const char* list : {"<DiskStatisticList />", "<VideoChannelStatisticList />", "<AlarmInStatisticList />",
                             "<AlarmOutStatisticList />"})
        EXPECT_NE(std::string::npos, text.find(list)) << list;
}

TEST(DeviceWorkStateXml, GoesOnWithoutTheProcessor)
{
    DeviceWorkStateXml codec;
    codec.getDeviceWorkState().setCpuStatistic(sampleCpu());
    ASSERT_TRUE(reads(codec,
                      "<DeviceWorkState><MemStatistic MemFreeSize='9' /><AlarmInStatisticList><AlarmInStatistic />"
                      "</AlarmInStatisticList></DeviceWorkState>"));
    expectCpu(sampleCpu(), codec.getDeviceWorkState().getCpuStatistic());
    EXPECT_EQ(9, codec.getDeviceWorkState().getMemStatistic().getMemFreeSize());
    ASSERT_EQ(1U, codec.getDeviceWorkState().getAlarmInStatisticList().size());
    EXPECT_EQ(1, codec.getDeviceWorkState().getAlarmInStatisticList()[0].getAlarmInStatus());
}

TEST(DeviceWorkStateXml, ReplacesAChildByTheOneThatIsThere)
{
    DeviceWorkStateXml codec;
    codec.setDeviceWorkState(sample());
    ASSERT_TRUE(reads(codec, "<DeviceWorkState><CpuStatistic CpuStatus='9' /></DeviceWorkState>"));
    EXPECT_EQ(0, codec.getDeviceWorkState().getCpuStatistic().getCpuPercent());
    EXPECT_EQ(9, codec.getDeviceWorkState().getCpuStatistic().getCpuStatus());
}

TEST(DeviceWorkStateXml, AddsItemsBehindThoseOfEveryList)
{
    DeviceWorkStateXml codec;
    codec.setDeviceWorkState(sample());
    ASSERT_TRUE(reads(codec, golden("device/DeviceWorkStateXml.document.xml")));
    DeviceWorkState expected = sample();
    expected.setDiskStatisticList({sampleDisk(), DiskStatistic(), sampleDisk(), DiskStatistic()});
    expected.setVideoChannelStatisticList({sampleChannel(), sampleChannel()});
    expected.setAlarmInStatisticList({sampleInput(), sampleInput()});
    expected.setAlarmOutStatisticList({sampleOutput(), sampleOutput()});
    expectState(expected, codec.getDeviceWorkState());
}

TEST(DeviceWorkStateXml, AddsItemsOfAnyNameBehindThoseThatAreThere)
{
    DeviceWorkStateXml codec;
    codec.getDeviceWorkState().setDiskStatisticList({sampleDisk()});
    ASSERT_TRUE(reads(codec,
                      "<DeviceWorkState><DiskStatisticList><Other DiskId='1' /><DiskStatistic DiskId='3' /><!-- -->text"
                      "<Other DiskId='4' /></DiskStatisticList></DeviceWorkState>"));
    const std::vector<DiskStatistic>& disks = codec.getDeviceWorkState().getDiskStatisticList();
    ASSERT_EQ(3U, disks.size());
    expectDisk(sampleDisk(), disks[0]);
    EXPECT_EQ(3, disks[1].getDiskId());
    EXPECT_EQ(4, disks[2].getDiskId());
}
