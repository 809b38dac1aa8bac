#include "network/I3GMessageConnectPolicyParamXml.h"

#include "tests/network/I3GPolicySample.h"
#include "tests/support/Documents.h"

TEST(I3GMessageConnectPolicyParamXml, Writes)
{
    I3GMessageConnectPolicyParamXml codec;
    codec.setI3GMessageConnectPolicyParam(sampleMessagePolicy());
    EXPECT_TRUE(matchesGolden(written(codec), "network/I3GMessageConnectPolicyParamXml.document.xml"));
}

TEST(I3GMessageConnectPolicyParamXml, Reads)
{
    I3GMessageConnectPolicyParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/I3GMessageConnectPolicyParamXml.document.xml")));
    expectMessagePolicy(sampleMessagePolicy(), codec.getI3GMessageConnectPolicyParam());
}

TEST(I3GMessageConnectPolicyParamXml, LeavesWhatIsMissing)
{
    I3GMessageConnectPolicyParamXml codec;
    codec.setI3GMessageConnectPolicyParam(sampleMessagePolicy());
    ASSERT_TRUE(reads(codec, "<I3GMessageConnectPolicyParam />"));
    expectMessagePolicy(sampleMessagePolicy(), codec.getI3GMessageConnectPolicyParam());
}

TEST(I3GMessageConnectPolicyParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(I3GMessageConnectPolicyParamXml().createXmlString(sampleMessagePolicy(), text));
    EXPECT_TRUE(matchesGolden(text, "network/I3GMessageConnectPolicyParamXml.node.xml"));
}

TEST(I3GMessageConnectPolicyParamXml, ReadsNodes)
{
    I3GMessageConnectPolicyParam read;
    ASSERT_TRUE(I3GMessageConnectPolicyParamXml().parseXmlString(
        golden("network/I3GMessageConnectPolicyParamXml.node.xml"), read));
    expectMessagePolicy(sampleMessagePolicy(), read);
}

TEST(I3GMessageConnectPolicyParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    I3GMessageConnectPolicyParam read = sampleMessagePolicy();
    ASSERT_TRUE(I3GMessageConnectPolicyParamXml().parseXmlString("<I3GMessageConnectPolicyParam />", read));
    expectMessagePolicy(I3GMessageConnectPolicyParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(I3GMessageConnectPolicyParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(I3GMessageConnectPolicyParamXml().createXmlString(
        {sampleMessagePolicy(), I3GMessageConnectPolicyParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/I3GMessageConnectPolicyParamXml.list.xml"));
    ASSERT_TRUE(I3GMessageConnectPolicyParamXml().createXmlString(std::vector<I3GMessageConnectPolicyParam>(), text));
    EXPECT_EQ("<I3GMessageConnectPolicyParamList />\n", text);
}

TEST(I3GMessageConnectPolicyParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<I3GMessageConnectPolicyParam> list(1, sampleMessagePolicy());
    ASSERT_TRUE(I3GMessageConnectPolicyParamXml().parseXmlString(
        golden("network/I3GMessageConnectPolicyParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectMessagePolicy(sampleMessagePolicy(), list[0]);
    expectMessagePolicy(sampleMessagePolicy(), list[1]);
    expectMessagePolicy(I3GMessageConnectPolicyParam(), list[2]);
}

TEST(I3GMessageConnectPolicyParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    I3GMessageConnectPolicyParam read = sampleMessagePolicy();
    std::vector<I3GMessageConnectPolicyParam> list(1, sampleMessagePolicy());
    EXPECT_FALSE(I3GMessageConnectPolicyParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(I3GMessageConnectPolicyParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(I3GMessageConnectPolicyParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(I3GMessageConnectPolicyParamXml().parseDomainXmlNode(empty, list));
    expectMessagePolicy(sampleMessagePolicy(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(I3GMessageConnectPolicyParamXml, RefusesTheRootOfTheOtherKind)
{
    I3GMessageConnectPolicyParam read;
    std::vector<I3GMessageConnectPolicyParam> list;
    EXPECT_FALSE(I3GMessageConnectPolicyParamXml().parseXmlString(
        golden("network/I3GMessageConnectPolicyParamXml.list.xml"), read));
    EXPECT_FALSE(I3GMessageConnectPolicyParamXml().parseXmlString(
        golden("network/I3GMessageConnectPolicyParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
