#include "network/I3GPolicyParamXml.h"

#include "tests/network/I3GPolicySample.h"
#include "tests/support/Documents.h"

TEST(I3GPolicyParamXml, Writes)
{
    I3GPolicyParamXml codec;
    codec.setI3GPolicyParam(samplePolicy());
    EXPECT_TRUE(matchesGolden(written(codec), "network/I3GPolicyParamXml.document.xml"));
}

TEST(I3GPolicyParamXml, Reads)
{
    I3GPolicyParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/I3GPolicyParamXml.document.xml")));
    expectPolicy(samplePolicy(), codec.getI3GPolicyParam());
}

TEST(I3GPolicyParamXml, LeavesWhatIsMissing)
{
    I3GPolicyParamXml codec;
    codec.setI3GPolicyParam(samplePolicy());
    ASSERT_TRUE(reads(codec, "<I3GPolicyParam />"));
    expectPolicy(samplePolicy(), codec.getI3GPolicyParam());
}

TEST(I3GPolicyParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(I3GPolicyParamXml().createXmlString(samplePolicy(), text));
    EXPECT_TRUE(matchesGolden(text, "network/I3GPolicyParamXml.node.xml"));
}

TEST(I3GPolicyParamXml, ReadsNodes)
{
    I3GPolicyParam read;
    ASSERT_TRUE(I3GPolicyParamXml().parseXmlString(golden("network/I3GPolicyParamXml.node.xml"), read));
    expectPolicy(samplePolicy(), read);
}

TEST(I3GPolicyParamXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    I3GPolicyParam read = samplePolicy();
    ASSERT_TRUE(I3GPolicyParamXml().parseXmlString("<I3GPolicyParam />", read));
    expectPolicy(I3GPolicyParam(), read);
    EXPECT_EQ("I3GPolicyParamXml::parseDomainXmlNode get EnableFlag failed \n", output.text());
}

TEST(I3GPolicyParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(I3GPolicyParamXml().createXmlString({samplePolicy(), I3GPolicyParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/I3GPolicyParamXml.list.xml"));
    ASSERT_TRUE(I3GPolicyParamXml().createXmlString(std::vector<I3GPolicyParam>(), text));
    EXPECT_EQ("<I3GPolicyParamList />\n", text);
}

TEST(I3GPolicyParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<I3GPolicyParam> list(1, samplePolicy());
    ASSERT_TRUE(I3GPolicyParamXml().parseXmlString(golden("network/I3GPolicyParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectPolicy(samplePolicy(), list[0]);
    expectPolicy(samplePolicy(), list[1]);
    expectPolicy(I3GPolicyParam(), list[2]);
}

TEST(I3GPolicyParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    I3GPolicyParam read = samplePolicy();
    std::vector<I3GPolicyParam> list(1, samplePolicy());
    EXPECT_FALSE(I3GPolicyParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(I3GPolicyParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(I3GPolicyParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(I3GPolicyParamXml().parseDomainXmlNode(empty, list));
    expectPolicy(samplePolicy(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(I3GPolicyParamXml, RefusesTheRootOfTheOtherKind)
{
    I3GPolicyParam read;
    std::vector<I3GPolicyParam> list;
    EXPECT_FALSE(I3GPolicyParamXml().parseXmlString(golden("network/I3GPolicyParamXml.list.xml"), read));
    EXPECT_FALSE(I3GPolicyParamXml().parseXmlString(golden("network/I3GPolicyParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}

TEST(I3GPolicyParamXml, ReadsAChildAsANewOne)
{
    I3GPolicyParamXml codec;
    codec.setI3GPolicyParam(samplePolicy());
    ASSERT_TRUE(reads(codec, "<I3GPolicyParam><I3GMessageConnectPolicyParam ConnectMessageContent='go' />"
                             "<I3GTimeConnectPolicyParam OnlineMode='9' /></I3GPolicyParam>"));
    I3GMessageConnectPolicyParam messagePolicy;
    messagePolicy.setConnectMessageContent("go");
    I3GTimeConnectPolicyParam timePolicy;
    timePolicy.setOnlineMode(9);
    expectMessagePolicy(messagePolicy, codec.getI3GPolicyParam().get3GMessageConnectPolicyParam());
    expectTimePolicy(timePolicy, codec.getI3GPolicyParam().get3GTimeConnectPolicyParam());
    EXPECT_TRUE(codec.getI3GPolicyParam().getEnableFlag());
}
