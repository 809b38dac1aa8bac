#include "network/UploadPolicyXml.h"

#include "tests/support/Documents.h"

namespace
{

UploadPolicy sample()
{
    UploadPolicy policy;
    policy.setUploadEnableFlag(true);
    policy.setUploadServerIP("192.0.2.8");
    policy.setUploadServerPort(30007);
    policy.setIPProtoVer(6);
    return policy;
}

void expectPolicy(const UploadPolicy& expected, const UploadPolicy& policy)
{
    EXPECT_EQ(expected.getUploadEnableFlag(), policy.getUploadEnableFlag());
    EXPECT_EQ(expected.getUploadServerIP(), policy.getUploadServerIP());
    EXPECT_EQ(expected.getUploadServerPort(), policy.getUploadServerPort());
    EXPECT_EQ(expected.getIPProtoVer(), policy.getIPProtoVer());
}

} // namespace

TEST(UploadPolicyXml, Writes)
{
    UploadPolicyXml codec;
    codec.setUploadPolicy(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/UploadPolicyXml.document.xml"));
}

TEST(UploadPolicyXml, Reads)
{
    UploadPolicyXml codec;
    ASSERT_TRUE(reads(codec, golden("network/UploadPolicyXml.document.xml")));
    expectPolicy(sample(), codec.getUploadPolicy());
}

TEST(UploadPolicyXml, LeavesWhatIsMissing)
{
    UploadPolicyXml codec;
    codec.setUploadPolicy(sample());
    ASSERT_TRUE(reads(codec, "<UploadPolicy />"));
    expectPolicy(sample(), codec.getUploadPolicy());
}

TEST(UploadPolicyXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(UploadPolicyXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/UploadPolicyXml.node.xml"));
}

TEST(UploadPolicyXml, ReadsNodes)
{
    CapturedOutput output;
    UploadPolicy read;
    ASSERT_TRUE(UploadPolicyXml().parseXmlString(golden("network/UploadPolicyXml.node.xml"), read));
    expectPolicy(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(UploadPolicyXml, GivesTheDefaultsOfWhatANodeLacks)
{
    CapturedOutput output;
    UploadPolicy read = sample();
    ASSERT_TRUE(UploadPolicyXml().parseXmlString("<UploadPolicy />", read));
    UploadPolicy expected;
    expected.setIPProtoVer(1);
    expectPolicy(expected, read);
    EXPECT_EQ("", output.text());
}

TEST(UploadPolicyXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    UploadPolicy read = sample();
    EXPECT_FALSE(UploadPolicyXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(UploadPolicyXml().parseDomainXmlNode(empty, read));
    expectPolicy(sample(), read);
}

TEST(UploadPolicyXml, LeavesTheRecordOfAFailedRead)
{
    UploadPolicy read = sample();
    EXPECT_FALSE(UploadPolicyXml().parseXmlString("<UploadPolicy IPProtoVer='9'", read));
    EXPECT_FALSE(UploadPolicyXml().parseXmlString("<Other IPProtoVer='9' />", read));
    expectPolicy(sample(), read);
}
