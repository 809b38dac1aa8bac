#include "record/WritePolicyXml.h"

#include "tests/record/RecordPolicySample.h"
#include "tests/support/Documents.h"

TEST(WritePolicyXml, Writes)
{
    WritePolicyXml codec;
    codec.setWritePolicy(sampleWritePolicy());
    EXPECT_TRUE(matchesGolden(written(codec), "record/WritePolicyXml.document.xml"));
}

TEST(WritePolicyXml, Reads)
{
    WritePolicyXml codec;
    ASSERT_TRUE(reads(codec, golden("record/WritePolicyXml.document.xml")));
    expectWritePolicy(sampleWritePolicy(), codec.getWritePolicy());
}

TEST(WritePolicyXml, ResetsWhatIsMissing)
{
    WritePolicyXml codec;
    codec.setWritePolicy(sampleWritePolicy());
    ASSERT_TRUE(reads(codec, "<WritePolicy />"));
    expectWritePolicy(WritePolicy(), codec.getWritePolicy());
}
