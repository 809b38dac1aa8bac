#include "network/I3GTimeConnectPolicyParamXml.h"

#include "tests/network/I3GPolicySample.h"
#include "tests/support/Documents.h"

TEST(I3GTimeConnectPolicyParamXml, Writes)
{
    I3GTimeConnectPolicyParamXml codec;
    codec.setI3GTimeConnectPolicyParam(sampleTimePolicy());
    EXPECT_TRUE(matchesGolden(written(codec), "network/I3GTimeConnectPolicyParamXml.document.xml"));
}

TEST(I3GTimeConnectPolicyParamXml, Reads)
{
    I3GTimeConnectPolicyParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/I3GTimeConnectPolicyParamXml.document.xml")));
    expectTimePolicy(sampleTimePolicy(), codec.getI3GTimeConnectPolicyParam());
}

TEST(I3GTimeConnectPolicyParamXml, LeavesWhatIsMissing)
{
    I3GTimeConnectPolicyParamXml codec;
    codec.setI3GTimeConnectPolicyParam(sampleTimePolicy());
    ASSERT_TRUE(reads(codec, "<I3GTimeConnectPolicyParam />"));
    expectTimePolicy(sampleTimePolicy(), codec.getI3GTimeConnectPolicyParam());
}

TEST(I3GTimeConnectPolicyParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(I3GTimeConnectPolicyParamXml().createXmlString(sampleTimePolicy(), text));
    EXPECT_TRUE(matchesGolden(text, "network/I3GTimeConnectPolicyParamXml.node.xml"));
}

TEST(I3GTimeConnectPolicyParamXml, ReadsNodes)
{
    I3GTimeConnectPolicyParam read;
    ASSERT_TRUE(
        I3GTimeConnectPolicyParamXml().parseXmlString(golden("network/I3GTimeConnectPolicyParamXml.node.xml"), read));
    expectTimePolicy(sampleTimePolicy(), read);
}

TEST(I3GTimeConnectPolicyParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    I3GTimeConnectPolicyParam read = sampleTimePolicy();
    ASSERT_TRUE(I3GTimeConnectPolicyParamXml().parseXmlString("<I3GTimeConnectPolicyParam />", read));
    expectTimePolicy(I3GTimeConnectPolicyParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(I3GTimeConnectPolicyParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(
        I3GTimeConnectPolicyParamXml().createXmlString({sampleTimePolicy(), I3GTimeConnectPolicyParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/I3GTimeConnectPolicyParamXml.list.xml"));
    ASSERT_TRUE(I3GTimeConnectPolicyParamXml().createXmlString(std::vector<I3GTimeConnectPolicyParam>(), text));
    EXPECT_EQ("<I3GTimeConnectPolicyParamList />\n", text);
}

TEST(I3GTimeConnectPolicyParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<I3GTimeConnectPolicyParam> list(1, sampleTimePolicy());
    ASSERT_TRUE(
        I3GTimeConnectPolicyParamXml().parseXmlString(golden("network/I3GTimeConnectPolicyParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectTimePolicy(sampleTimePolicy(), list[0]);
    expectTimePolicy(sampleTimePolicy(), list[1]);
    expectTimePolicy(I3GTimeConnectPolicyParam(), list[2]);
}

TEST(I3GTimeConnectPolicyParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    I3GTimeConnectPolicyParam read = sampleTimePolicy();
    std::vector<I3GTimeConnectPolicyParam> list(1, sampleTimePolicy());
    EXPECT_FALSE(I3GTimeConnectPolicyParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(I3GTimeConnectPolicyParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(I3GTimeConnectPolicyParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(I3GTimeConnectPolicyParamXml().parseDomainXmlNode(empty, list));
    expectTimePolicy(sampleTimePolicy(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(I3GTimeConnectPolicyParamXml, RefusesTheRootOfTheOtherKind)
{
    I3GTimeConnectPolicyParam read;
    std::vector<I3GTimeConnectPolicyParam> list;
    EXPECT_FALSE(
        I3GTimeConnectPolicyParamXml().parseXmlString(golden("network/I3GTimeConnectPolicyParamXml.list.xml"), read));
    EXPECT_FALSE(
        I3GTimeConnectPolicyParamXml().parseXmlString(golden("network/I3GTimeConnectPolicyParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
