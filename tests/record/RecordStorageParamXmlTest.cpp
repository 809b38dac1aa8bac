#include "record/RecordStorageParamXml.h"

#include "tests/record/RecordPolicySample.h"
#include "tests/support/Documents.h"

#include <cstddef>

namespace
{

RecordStorageParam sample()
{
    RecordStorageParam param;
    param.setWritePolicy(sampleWritePolicy());
    param.getSavePolicy().setRecordSaveDays(30);
    param.setSpacePolicyList({sampleSpacePolicy(), SpacePolicy()});
    return param;
}

void expectParam(const RecordStorageParam& expected, const RecordStorageParam& param)
{
    expectWritePolicy(expected.getWritePolicy(), param.getWritePolicy());
    EXPECT_EQ(expected.getSavePolicy().getRecordSaveDays(), param.getSavePolicy().getRecordSaveDays());
    ASSERT_EQ(expected.getSpacePolicyList().size(), param.getSpacePolicyList().size());
    for (std::size_t number = 0; number < param.getSpacePolicyList().size(); ++number)
        expectSpacePolicy(expected.getSpacePolicyList()[number], param.getSpacePolicyList()[number]);
}

} // namespace

TEST(RecordStorageParamXml, Writes)
{
    RecordStorageParamXml codec;
    codec.setRecordStorageParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "record/RecordStorageParamXml.document.xml"));
}

TEST(RecordStorageParamXml, Reads)
{
    RecordStorageParamXml codec;
    ASSERT_TRUE(reads(codec, golden("record/RecordStorageParamXml.document.xml")));
    expectParam(sample(), codec.getRecordStorageParam());
}

TEST(RecordStorageParamXml, LeavesChildrenAndListThatAreMissing)
{
    RecordStorageParamXml codec;
    codec.setRecordStorageParam(sample());
    ASSERT_TRUE(reads(codec, "<RecordStorageParam />"));
    expectParam(sample(), codec.getRecordStorageParam());
}

TEST(RecordStorageParamXml, ReplacesChildrenAndAddsToTheListThatIsThere)
{
    RecordStorageParamXml codec;
    codec.setRecordStorageParam(sample());
    ASSERT_TRUE(reads(codec,
                      "<RecordStorageParam><WritePolicy RecordFileTime='9' /><SavePolicy /><SpacePolicyList>"
                      "<Other /><SpacePolicy MaxDiskSize='8' /><!-- --></SpacePolicyList></RecordStorageParam>"));
    RecordStorageParam expected;
    expected.getWritePolicy().setRecordFileTime(9);
    expected.setSpacePolicyList({sampleSpacePolicy(), SpacePolicy(), SpacePolicy()});
    expected.getSpacePolicyList()[2].setMaxDiskSize(8);
    expectParam(expected, codec.getRecordStorageParam());
}
