#include "record/SavePolicyXml.h"

#include "tests/support/Documents.h"

TEST(SavePolicyXml, Writes)
{
    SavePolicyXml codec;
    codec.getSavePolicy().setRecordSaveDays(30);
    EXPECT_TRUE(matchesGolden(written(codec), "record/SavePolicyXml.document.xml"));
}

TEST(SavePolicyXml, Reads)
{
    SavePolicyXml codec;
    ASSERT_TRUE(reads(codec, golden("record/SavePolicyXml.document.xml")));
    EXPECT_EQ(30, codec.getSavePolicy().getRecordSaveDays());
}

TEST(SavePolicyXml, ResetsWhatIsMissing)
{
    SavePolicy policy;
    policy.setRecordSaveDays(30);
    SavePolicyXml codec;
    codec.setSavePolicy(policy);
    ASSERT_TRUE(reads(codec, "<SavePolicy />"));
    EXPECT_EQ(0, codec.getSavePolicy().getRecordSaveDays());
}
