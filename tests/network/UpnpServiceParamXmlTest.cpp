#include "network/UpnpServiceParamXml.h"

#include "tests/support/Documents.h"

namespace
{

UpnpServiceParam param(bool enable)
{
    UpnpServiceParam param;
    param.setUpnpEnableFlag(enable);
    return param;
}

std::string textOf(const SafePointer<DomainXmlNode>& node)
{
    std::string text;
    EXPECT_TRUE(DomainXmlNode::toString(node, text));
    return text;
}

} // namespace

TEST(UpnpServiceParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(UpnpServiceParamXml().createXmlString(param(true), text));
    EXPECT_TRUE(matchesGolden(text, "network/UpnpServiceParamXml.node.xml"));
}

TEST(UpnpServiceParamXml, ReadsNodes)
{
    CapturedOutput output;
    UpnpServiceParam read;
    ASSERT_TRUE(UpnpServiceParamXml().parseXmlString(golden("network/UpnpServiceParamXml.node.xml"), read));
    EXPECT_TRUE(read.getUpnpEnableFlag());
    EXPECT_EQ("", output.text());
}

TEST(UpnpServiceParamXml, CreatesANewNode)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("Old"));
    const SafePointer<DomainXmlNode> old = node;
    ASSERT_TRUE(UpnpServiceParamXml().create(param(true), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "network/UpnpServiceParamXml.node.xml"));
    EXPECT_EQ("<Old />\n", textOf(old));

    SafePointer<DomainXmlNode> empty;
    ASSERT_TRUE(UpnpServiceParamXml().create(param(true), empty));
    EXPECT_TRUE(matchesGolden(textOf(empty), "network/UpnpServiceParamXml.node.xml"));
}

TEST(UpnpServiceParamXml, ParsesStrictly)
{
    CapturedOutput output;
    SafePointer<DomainXmlNode> node;
    UpnpServiceParam read = param(true);
    EXPECT_FALSE(UpnpServiceParamXml().parse(node, read));
    ASSERT_TRUE(DomainXmlNode::parse("<Any />", node));
    EXPECT_FALSE(UpnpServiceParamXml().parse(node, read));
    EXPECT_TRUE(read.getUpnpEnableFlag());
    ASSERT_TRUE(DomainXmlNode::parse("<Any UpnpEnableFlag='false' />", node));
    EXPECT_TRUE(UpnpServiceParamXml().parse(node, read));
    EXPECT_FALSE(read.getUpnpEnableFlag());
    EXPECT_EQ("", output.text());
}

TEST(UpnpServiceParamXml, LeavesTheRecordOfAFailedRead)
{
    UpnpServiceParam read = param(true);
    EXPECT_FALSE(UpnpServiceParamXml().parseXmlString("<UpnpServiceParam UpnpEnableFlag='false'", read));
    EXPECT_FALSE(UpnpServiceParamXml().parseXmlString("<Other UpnpEnableFlag='false' />", read));
    EXPECT_TRUE(read.getUpnpEnableFlag());
}

TEST(UpnpServiceParamXml, RefusesWhatLacksTheFlag)
{
    CapturedOutput output;
    UpnpServiceParam read = param(true);
    EXPECT_FALSE(UpnpServiceParamXml().parseXmlString("<UpnpServiceParam />", read));
    SafePointer<DomainXmlNode> node(new DomainXmlNode("UpnpServiceParam"));
    EXPECT_FALSE(UpnpServiceParamXml().parseDomainXmlNode(node, read));
    EXPECT_TRUE(read.getUpnpEnableFlag());
    EXPECT_EQ("", output.text());
}

TEST(UpnpServiceParamXml, PutsANewNodeIntoTheCallersPointer)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("Old"));
    const SafePointer<DomainXmlNode> old = node;
    ASSERT_TRUE(UpnpServiceParamXml().createDomainXmlNode(param(true), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "network/UpnpServiceParamXml.node.xml"));
    EXPECT_EQ("<Old />\n", textOf(old));
}

TEST(UpnpServiceParamXml, FillsAnEmptyPointerAndReadsNone)
{
    SafePointer<DomainXmlNode> empty;
    UpnpServiceParam read = param(true);
    EXPECT_FALSE(UpnpServiceParamXml().parseDomainXmlNode(empty, read));
    EXPECT_TRUE(read.getUpnpEnableFlag());
    ASSERT_TRUE(UpnpServiceParamXml().createDomainXmlNode(read, empty));
    EXPECT_TRUE(matchesGolden(textOf(empty), "network/UpnpServiceParamXml.node.xml"));
}
