#include "alarm/DiskAlarmParamXml.h"

#include "tests/support/Documents.h"

namespace
{

DiskAlarmParam sample()
{
    DiskAlarmParam param;
    param.setDiskFullAlarmCheckFlag(true);
    param.setMaxDiskPercent(54);
    param.setMinDiskPercent(55);
    param.setDiskErrorAlarmCheckFlag(true);
    return param;
}

void expectParam(const DiskAlarmParam& expected, const DiskAlarmParam& param)
{
    EXPECT_EQ(expected.getDiskFullAlarmCheckFlag(), param.getDiskFullAlarmCheckFlag());
    EXPECT_EQ(expected.getMaxDiskPercent(), param.getMaxDiskPercent());
    EXPECT_EQ(expected.getMinDiskPercent(), param.getMinDiskPercent());
    EXPECT_EQ(expected.getDiskErrorAlarmCheckFlag(), param.getDiskErrorAlarmCheckFlag());
}

} // namespace

TEST(DiskAlarmParamXml, Writes)
{
    DiskAlarmParamXml codec;
    codec.setDiskAlarmParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/DiskAlarmParamXml.document.xml"));
}

TEST(DiskAlarmParamXml, Reads)
{
    DiskAlarmParamXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/DiskAlarmParamXml.document.xml")));
    expectParam(sample(), codec.getDiskAlarmParam());
}

TEST(DiskAlarmParamXml, ResetsWhatIsMissing)
{
    DiskAlarmParamXml codec;
    codec.setDiskAlarmParam(sample());
    ASSERT_TRUE(reads(codec, "<DiskAlarmParam />"));
    expectParam(DiskAlarmParam(), codec.getDiskAlarmParam());
}

TEST(DiskAlarmParamXml, TellsItsFlagsApart)
{
    DiskAlarmParamXml codec;
    codec.getDiskAlarmParam().setDiskErrorAlarmCheckFlag(true);
    EXPECT_EQ("<DiskAlarmParam DiskFullAlarmCheckFlag=\"false\" MaxDiskPercent=\"0\" MinDiskPercent=\"0\" "
              "DiskErrorAlarmCheckFlag=\"true\" />\n",
              written(codec));
    DiskAlarmParamXml reader;
    ASSERT_TRUE(reads(reader, codec.getXmlString()));
    expectParam(codec.getDiskAlarmParam(), reader.getDiskAlarmParam());
}
