#include "network/ProtocolConfigParamXml.h"

#include "tests/support/Documents.h"

namespace
{

ProtocolConfigParamItem item(const std::string& name, const std::string& version, bool enable)
{
    ProtocolConfigParamItem item;
    item.setProtocolName(name);
    item.setProtocolVersion(version);
    item.setEnableFlag(enable);
    return item;
}

ProtocolConfigParam sample()
{
    ProtocolConfigParam param;
    param.setProtocolConfigParam(item("CMS", "2.0", true));
    param.setProtocolConfigParam(item("Old", "1.1", false));
    return param;
}

void expectItem(const ProtocolConfigParamItem& expected, const ProtocolConfigParamItem& item)
{
    EXPECT_EQ(expected.getProtocolName(), item.getProtocolName());
    EXPECT_EQ(expected.getProtocolVersion(), item.getProtocolVersion());
    EXPECT_EQ(expected.getEnableFlag(), item.getEnableFlag());
}

void expectParam(const ProtocolConfigParam& expected, const ProtocolConfigParam& param)
{
    ASSERT_EQ(expected.getProtocolConfigParam().size(), param.getProtocolConfigParam().size());
    for (std::size_t number = 0; number < param.getProtocolConfigParam().size(); ++number)
        expectItem(expected.getProtocolConfigParam()[number], param.getProtocolConfigParam()[number]);
}

} // namespace

TEST(ProtocolConfigParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ProtocolConfigParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/ProtocolConfigParamXml.node.xml"));
}

TEST(ProtocolConfigParamXml, ReadsNodesBehindWhatTheRecordHolds)
{
    ProtocolConfigParam read;
    read.setProtocolConfigParam(item("before", "0", true));
    ASSERT_TRUE(ProtocolConfigParamXml().parseXmlString(golden("network/ProtocolConfigParamXml.node.xml"), read));
    ASSERT_EQ(3U, read.getProtocolConfigParam().size());
    expectItem(item("before", "0", true), read.getProtocolConfigParam()[0]);
    expectItem(item("CMS", "2.0", true), read.getProtocolConfigParam()[1]);
    expectItem(item("Old", "1.1", false), read.getProtocolConfigParam()[2]);
}

TEST(ProtocolConfigParamXml, MakesARoot)
{
    SafePointer<DomainXmlNode> node;
    std::string text;
    ASSERT_TRUE(ProtocolConfigParamXml().create(sample(), node));
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_TRUE(matchesGolden(text, "network/ProtocolConfigParamXml.node.xml"));

    ASSERT_TRUE(ProtocolConfigParamXml().create(ProtocolConfigParam(), node));
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ("<ProtocolConfigParam />\n", text);
}

TEST(ProtocolConfigParamXml, FillsAndReadsANodeOfTheCaller)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("Any"));
    ASSERT_TRUE(ProtocolConfigParamXml().createDomainXmlNode(sample(), node));
    ProtocolConfigParam read;
    ASSERT_TRUE(ProtocolConfigParamXml().parseDomainXmlNode(node, read));
    expectParam(sample(), read);
}

TEST(ProtocolConfigParamXml, EndsARecordAtAnItemThatLacksAProperty)
{
    CapturedOutput output;
    ProtocolConfigParam read;
    EXPECT_FALSE(ProtocolConfigParamXml().parseXmlString(
        "<ProtocolConfigParam><ProtocolConfigParamItem ProtocolName='a' ProtocolVersion='1' EnableFlag='true' />"
        "<ProtocolConfigParamItem ProtocolName='b' ProtocolVersion='2' />"
        "<ProtocolConfigParamItem ProtocolName='c' ProtocolVersion='3' EnableFlag='true' /></ProtocolConfigParam>",
        read));
    ASSERT_EQ(1U, read.getProtocolConfigParam().size());
    expectItem(item("a", "1", true), read.getProtocolConfigParam()[0]);
    EXPECT_EQ("", output.text());
}

TEST(ProtocolConfigParamXml, EndsAnItemAtItsFirstMissingProperty)
{
    ProtocolConfigParamItem read;
    SafePointer<DomainXmlNode> node(new DomainXmlNode("ProtocolConfigParamItem"));
    node->setProperty("EnableFlag", true);
    EXPECT_FALSE(ProtocolConfigParamXml().parseProtocolConfigParamItem(node, read));
    node->setProperty("ProtocolName", "a");
    EXPECT_FALSE(ProtocolConfigParamXml().parseProtocolConfigParamItem(node, read));
    expectItem(item("a", "", false), read);
    node->setProperty("ProtocolVersion", "1");
    EXPECT_TRUE(ProtocolConfigParamXml().parseProtocolConfigParamItem(node, read));
    expectItem(item("a", "1", true), read);
}

TEST(ProtocolConfigParamXml, PassesOverChildrenOfOtherNames)
{
    ProtocolConfigParam read;
    EXPECT_TRUE(
        ProtocolConfigParamXml().parseXmlString("<ProtocolConfigParam><!-- --><Other /></ProtocolConfigParam>", read));
    expectParam(ProtocolConfigParam(), read);
}

TEST(ProtocolConfigParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(ProtocolConfigParamXml().createXmlString({sample(), ProtocolConfigParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/ProtocolConfigParamXml.list.xml"));
    ASSERT_TRUE(ProtocolConfigParamXml().createXmlString(std::vector<ProtocolConfigParam>(), text));
    EXPECT_EQ("<ProtocolConfigParamList />\n", text);
}

TEST(ProtocolConfigParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<ProtocolConfigParam> list(1, sample());
    ASSERT_TRUE(ProtocolConfigParamXml().parseXmlString(golden("network/ProtocolConfigParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectParam(sample(), list[0]);
    expectParam(sample(), list[1]);
    expectParam(ProtocolConfigParam(), list[2]);
}

TEST(ProtocolConfigParamXml, GoesOnPastAnItemOfAListThatLacksAProperty)
{
    CapturedOutput output;
    std::vector<ProtocolConfigParam> list;
    ASSERT_TRUE(ProtocolConfigParamXml().parseXmlString(
        "<ProtocolConfigParamList><Other /><ProtocolConfigParam><ProtocolConfigParamItem ProtocolName='a' />"
        "<Other ProtocolName='x' /><ProtocolConfigParamItem EnableFlag='true' /></ProtocolConfigParam>"
        "<Other /></ProtocolConfigParamList>",
        list));
    ASSERT_EQ(1U, list.size());
    ProtocolConfigParam expected;
    expected.setProtocolConfigParam(item("a", "", false));
    expected.setProtocolConfigParam(item("", "", true));
    expectParam(expected, list[0]);
    EXPECT_EQ("", output.text());
}

TEST(ProtocolConfigParamXml, RefusesAnEmptyPointer)
{
    const ProtocolConfigParamXml codec;
    SafePointer<DomainXmlNode> empty;
    ProtocolConfigParam read = sample();
    ProtocolConfigParamItem readItem = item("a", "1", true);
    std::vector<ProtocolConfigParam> list(1, sample());
    EXPECT_FALSE(codec.createProtocolConfigParamItem(readItem, empty));
    EXPECT_FALSE(codec.createDomainXmlNode(read, empty));
    EXPECT_FALSE(codec.createDomainXmlNode(list, empty));
    EXPECT_FALSE(codec.parse(empty, read));
    EXPECT_FALSE(codec.parseProtocolConfigParamItem(empty, readItem));
    EXPECT_FALSE(codec.parseDomainXmlNode(empty, read));
    EXPECT_FALSE(codec.parseDomainXmlNode(empty, list));
    expectParam(sample(), read);
    expectItem(item("a", "1", true), readItem);
    EXPECT_EQ(1U, list.size());
}

TEST(ProtocolConfigParamXml, RefusesTheRootOfTheOtherKind)
{
    ProtocolConfigParam read;
    std::vector<ProtocolConfigParam> list;
    EXPECT_FALSE(ProtocolConfigParamXml().parseXmlString(golden("network/ProtocolConfigParamXml.list.xml"), read));
    EXPECT_FALSE(ProtocolConfigParamXml().parseXmlString(golden("network/ProtocolConfigParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
