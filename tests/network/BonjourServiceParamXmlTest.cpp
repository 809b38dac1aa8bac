#include "network/BonjourServiceParamXml.h"

#include "tests/support/Documents.h"

namespace
{

BonjourServiceParam param(bool enable)
{
    BonjourServiceParam param;
    param.setBonjourEnableFlag(enable);
    return param;
}

std::string textOf(const SafePointer<DomainXmlNode>& node)
{
    std::string text;
    EXPECT_TRUE(DomainXmlNode::toString(node, text));
    return text;
}

} // namespace

TEST(BonjourServiceParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(BonjourServiceParamXml().createXmlString(param(true), text));
    EXPECT_TRUE(matchesGolden(text, "network/BonjourServiceParamXml.node.xml"));
}

TEST(BonjourServiceParamXml, ReadsNodes)
{
    CapturedOutput output;
    BonjourServiceParam read;
    ASSERT_TRUE(BonjourServiceParamXml().parseXmlString(golden("network/BonjourServiceParamXml.node.xml"), read));
    EXPECT_TRUE(read.getBonjourEnableFlag());
    EXPECT_EQ("", output.text());
}

TEST(BonjourServiceParamXml, CreatesANewNode)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("Old"));
    const SafePointer<DomainXmlNode> old = node;
    ASSERT_TRUE(BonjourServiceParamXml().create(param(true), node));
    EXPECT_TRUE(matchesGolden(textOf(node), "network/BonjourServiceParamXml.node.xml"));
    EXPECT_EQ("<Old />\n", textOf(old));

    SafePointer<DomainXmlNode> empty;
    ASSERT_TRUE(BonjourServiceParamXml().create(param(true), empty));
    EXPECT_TRUE(matchesGolden(textOf(empty), "network/BonjourServiceParamXml.node.xml"));
}

TEST(BonjourServiceParamXml, ParsesStrictly)
{
    CapturedOutput output;
    SafePointer<DomainXmlNode> node;
    BonjourServiceParam read = param(true);
    EXPECT_FALSE(BonjourServiceParamXml().parse(node, read));
    ASSERT_TRUE(DomainXmlNode::parse("<Any />", node));
    EXPECT_FALSE(BonjourServiceParamXml().parse(node, read));
    EXPECT_TRUE(read.getBonjourEnableFlag());
    ASSERT_TRUE(DomainXmlNode::parse("<Any BonjourEnableFlag='false' />", node));
    EXPECT_TRUE(BonjourServiceParamXml().parse(node, read));
    EXPECT_FALSE(read.getBonjourEnableFlag());
    EXPECT_EQ("", output.text());
}

TEST(BonjourServiceParamXml, LeavesTheRecordOfAFailedRead)
{
    BonjourServiceParam read = param(true);
    EXPECT_FALSE(BonjourServiceParamXml().parseXmlString("<BonjourServiceParam BonjourEnableFlag='false'", read));
    EXPECT_FALSE(BonjourServiceParamXml().parseXmlString("<Other BonjourEnableFlag='false' />", read));
    EXPECT_TRUE(read.getBonjourEnableFlag());
}

TEST(BonjourServiceParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    BonjourServiceParam read = param(true);
    ASSERT_TRUE(BonjourServiceParamXml().parseXmlString("<BonjourServiceParam />", read));
    EXPECT_FALSE(read.getBonjourEnableFlag());
    EXPECT_EQ("", output.text());
}

TEST(BonjourServiceParamXml, FillsTheCallersNode)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("Any"));
    const SafePointer<DomainXmlNode> same = node;
    ASSERT_TRUE(BonjourServiceParamXml().createDomainXmlNode(param(true), node));
    EXPECT_EQ("<Any BonjourEnableFlag=\"true\" />\n", textOf(same));
}

TEST(BonjourServiceParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    BonjourServiceParam read = param(true);
    EXPECT_FALSE(BonjourServiceParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(BonjourServiceParamXml().parseDomainXmlNode(empty, read));
    EXPECT_TRUE(read.getBonjourEnableFlag());
}
