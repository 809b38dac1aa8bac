#include "network/BroadcastParamXml.h"

#include "tests/support/Documents.h"

namespace
{

BroadcastParam sample()
{
    BroadcastParam param;
    param.setBroadcastEnableFlag(true);
    param.setBroadcastPort(5007);
    param.setBroadcastInterval(30);
    param.setReserveValue1(11);
    param.setReserveValue2(12);
    param.setReserveValue3(13);
    return param;
}

void expectParam(const BroadcastParam& expected, const BroadcastParam& param)
{
    EXPECT_EQ(expected.getBroadcastEnableFlag(), param.getBroadcastEnableFlag());
    EXPECT_EQ(expected.getBroadcastPort(), param.getBroadcastPort());
    EXPECT_EQ(expected.getBroadcastInterval(), param.getBroadcastInterval());
    EXPECT_EQ(expected.getReserveValue1(), param.getReserveValue1());
    EXPECT_EQ(expected.getReserveValue2(), param.getReserveValue2());
    EXPECT_EQ(expected.getReserveValue3(), param.getReserveValue3());
}

} // namespace

TEST(BroadcastParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(BroadcastParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/BroadcastParamXml.node.xml"));
}

TEST(BroadcastParamXml, ReadsNodes)
{
    CapturedOutput output;
    BroadcastParam read;
    ASSERT_TRUE(BroadcastParamXml().parseXmlString(golden("network/BroadcastParamXml.node.xml"), read));
    expectParam(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(BroadcastParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    BroadcastParam read = sample();
    ASSERT_TRUE(BroadcastParamXml().parseXmlString("<BroadcastParam><BroadcastParam /></BroadcastParam>", read));
    expectParam(BroadcastParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(BroadcastParamXml, RefusesATextWithItsValuesOnTheRoot)
{
    CapturedOutput output;
    BroadcastParam read = sample();
    EXPECT_FALSE(BroadcastParamXml().parseXmlString("<BroadcastParam BroadcastPort='1' ReserveValue1='2' />", read));
    EXPECT_FALSE(
        BroadcastParamXml().parseXmlString("<BroadcastParam><Other BroadcastPort='1' /></BroadcastParam>", read));
    expectParam(sample(), read);
    EXPECT_EQ("", output.text());
}

TEST(BroadcastParamXml, EmptiesTheNodeThatItWritesTo)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<BroadcastParam><Child /></BroadcastParam>", node));
    ASSERT_TRUE(BroadcastParamXml().createDomainXmlNode(BroadcastParam(), node));
    ASSERT_TRUE(BroadcastParamXml().createDomainXmlNode(sample(), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_TRUE(matchesGolden(text, "network/BroadcastParamXml.node.xml"));
}

TEST(BroadcastParamXml, WritesListsBehindTheChildrenThatAreThere)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("Parent"));
    ASSERT_TRUE(BroadcastParamXml().createDomainXmlNode(std::vector<BroadcastParam>{sample()}, node));
    ASSERT_TRUE(BroadcastParamXml().createDomainXmlNode(std::vector<BroadcastParam>{BroadcastParam()}, node));
    ASSERT_TRUE(BroadcastParamXml().createDomainXmlNode(std::vector<BroadcastParam>(), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_TRUE(matchesGolden(text, "network/BroadcastParamXml.list.xml"));
}

TEST(BroadcastParamXml, ReadsListsBehindWhatTheyHold)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("network/BroadcastParamXml.list.xml"), node));
    BroadcastParam before;
    before.setBroadcastPort(1);
    std::vector<BroadcastParam> list = {before};
    ASSERT_TRUE(BroadcastParamXml().parseDomainXmlNode(node, list));
    ASSERT_EQ(3U, list.size());
    expectParam(before, list[0]);
    expectParam(sample(), list[1]);
    expectParam(BroadcastParam(), list[2]);
}

TEST(BroadcastParamXml, ReadsItemsOfAnyNameUpToTheFirstThatFails)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<Parent>text<!-- --><Other><BroadcastParam ReserveValue3='9' /></Other>"
                                     "<BroadcastParam /><Other><BroadcastParam /></Other></Parent>",
                                     node));
    std::vector<BroadcastParam> list;
    EXPECT_FALSE(BroadcastParamXml().parseDomainXmlNode(node, list));
    ASSERT_EQ(1U, list.size());
    BroadcastParam expected;
    expected.setReserveValue3(9);
    expectParam(expected, list[0]);
}

TEST(BroadcastParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    BroadcastParam read = sample();
    std::vector<BroadcastParam> list(1, sample());
    EXPECT_FALSE(BroadcastParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(BroadcastParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(BroadcastParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(BroadcastParamXml().parseDomainXmlNode(empty, list));
    expectParam(sample(), read);
    EXPECT_EQ(1U, list.size());
}
