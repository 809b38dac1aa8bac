#include "network/CommunicationParamXml.h"

#include "tests/support/Documents.h"

namespace
{

CommunicationParam param(int ipProtoFlag)
{
    CommunicationParam param;
    param.setIPProtoFlag(ipProtoFlag);
    return param;
}

} // namespace

TEST(CommunicationParamXml, Writes)
{
    CommunicationParamXml codec;
    codec.setCommunicationParam(param(2));
    EXPECT_TRUE(matchesGolden(written(codec), "network/CommunicationParamXml.document.xml"));
}

TEST(CommunicationParamXml, Reads)
{
    CommunicationParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/CommunicationParamXml.document.xml")));
    EXPECT_EQ(2, codec.getCommunicationParam().getIPProtoFlag());
}

TEST(CommunicationParamXml, ResetsWhatIsMissing)
{
    CommunicationParamXml codec;
    codec.setCommunicationParam(param(2));
    ASSERT_TRUE(reads(codec, "<CommunicationParam />"));
    EXPECT_EQ(0, codec.getCommunicationParam().getIPProtoFlag());
}

TEST(CommunicationParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(CommunicationParamXml().createXmlString(param(2), text));
    EXPECT_TRUE(matchesGolden(text, "network/CommunicationParamXml.node.xml"));
}

TEST(CommunicationParamXml, ReadsNodes)
{
    CapturedOutput output;
    CommunicationParam read;
    ASSERT_TRUE(CommunicationParamXml().parseXmlString(golden("network/CommunicationParamXml.node.xml"), read));
    EXPECT_EQ(2, read.getIPProtoFlag());
    EXPECT_EQ("", output.text());
}

TEST(CommunicationParamXml, GivesOneForWhatANodeLacks)
{
    CapturedOutput output;
    CommunicationParam read = param(2);
    ASSERT_TRUE(CommunicationParamXml().parseXmlString(
        "<CommunicationParam IPProtoFlag='3'><CommunicationParam /></CommunicationParam>", read));
    EXPECT_EQ(1, read.getIPProtoFlag());
    EXPECT_EQ("", output.text());
}

TEST(CommunicationParamXml, FindsNothingInATextOfTheOtherForm)
{
    CommunicationParam read = param(3);
    EXPECT_FALSE(CommunicationParamXml().parseXmlString(golden("network/CommunicationParamXml.document.xml"), read));
    EXPECT_EQ(3, read.getIPProtoFlag());

    CommunicationParamXml codec;
    codec.setCommunicationParam(param(3));
    ASSERT_TRUE(reads(codec, golden("network/CommunicationParamXml.node.xml")));
    EXPECT_EQ(0, codec.getCommunicationParam().getIPProtoFlag());
}

TEST(CommunicationParamXml, EmptiesTheNodeThatItWritesTo)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<Any Old='1'><Child /></Any>", node));
    ASSERT_TRUE(CommunicationParamXml().createDomainXmlNode(param(2), node));
    ASSERT_TRUE(CommunicationParamXml().createDomainXmlNode(param(3), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ("<Any Old=\"1\">\n\t<CommunicationParam IPProtoFlag=\"3\" />\n</Any>\n", text);
}

TEST(CommunicationParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    CommunicationParam read = param(2);
    EXPECT_FALSE(CommunicationParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(CommunicationParamXml().parseDomainXmlNode(empty, read));
    EXPECT_EQ(2, read.getIPProtoFlag());
}
