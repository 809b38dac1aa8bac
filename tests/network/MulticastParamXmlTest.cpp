#include "network/MulticastParamXml.h"

#include "tests/support/Documents.h"

#include <vector>

namespace
{

MulticastParam sample()
{
    MulticastParam param;
    param.setMulticastEnableFlag(true);
    param.setMulticastPort(5006);
    param.setMulticastInterval(30);
    param.setMulticastHostIP("239.192.0.18");
    param.setMulticastIPProtoVer(4);
    return param;
}

void expectParam(const MulticastParam& expected, const MulticastParam& param)
{
    EXPECT_EQ(expected.getMulticastEnableFlag(), param.getMulticastEnableFlag());
    EXPECT_EQ(expected.getMulticastPort(), param.getMulticastPort());
    EXPECT_EQ(expected.getMulticastInterval(), param.getMulticastInterval());
    EXPECT_EQ(expected.getMulticastHostIP(), param.getMulticastHostIP());
    EXPECT_EQ(expected.getMulticastIPProtoVer(), param.getMulticastIPProtoVer());
}

constexpr char whole[] = "<Other EnableFlag='1' Port='2' Interval='3' IP='4' IPProtoVer='5' />";

MulticastParam readOfWhole()
{
    MulticastParam param;
    param.setMulticastEnableFlag(true);
    param.setMulticastPort(2);
    param.setMulticastInterval(3);
    param.setMulticastHostIP("4");
    param.setMulticastIPProtoVer(5);
    return param;
}

} // namespace

TEST(MulticastParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(MulticastParamXml().createXmlString({sample(), MulticastParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/MulticastParamXml.list.xml"));
}

TEST(MulticastParamXml, WritesAnEmptyList)
{
    std::string text;
    ASSERT_TRUE(MulticastParamXml().createXmlString(std::vector<MulticastParam>(), text));
    EXPECT_EQ("<MulticastParamConfig />\n", text);
}

TEST(MulticastParamXml, ReadsListsBehindWhatTheyHold)
{
    CapturedOutput output;
    MulticastParam before;
    before.setMulticastHostIP("before");
    std::vector<MulticastParam> list = {before};
    ASSERT_TRUE(MulticastParamXml().parseXmlString(golden("network/MulticastParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectParam(before, list[0]);
    expectParam(sample(), list[1]);
    expectParam(MulticastParam(), list[2]);
    EXPECT_EQ("", output.text());
}

TEST(MulticastParamXml, ReadsNodesBehindWhatTheListHolds)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(golden("network/MulticastParamXml.list.xml"), node));
    std::vector<MulticastParam> list(1, readOfWhole());
    ASSERT_TRUE(MulticastParamXml().parseDomainXmlNode(node, list));
    ASSERT_EQ(3U, list.size());
    expectParam(readOfWhole(), list[0]);
    expectParam(sample(), list[1]);
    expectParam(MulticastParam(), list[2]);
}

TEST(MulticastParamXml, RefusesATextButNotANodeWithAnIncompleteItem)
{
    for (const char* lost : {" EnableFlag='1'", " Port='2'", " Interval='3'", " IP='4'", " IPProtoVer='5'"})
    {
        std::string item = whole;
        item.erase(item.find(lost), std::string(lost).size());
        const std::string text =
            std::string("<MulticastParamConfig>text<!-- -->") + whole + item + whole + "</MulticastParamConfig>";
        CapturedOutput output;
        std::vector<MulticastParam> list(1, sample());
        EXPECT_FALSE(MulticastParamXml().parseXmlString(text, list)) << lost;
        ASSERT_EQ(2U, list.size()) << lost;
        expectParam(sample(), list[0]);
        expectParam(readOfWhole(), list[1]);

        SafePointer<DomainXmlNode> node;
        ASSERT_TRUE(DomainXmlNode::parse(text, node));
        list.clear();
        EXPECT_TRUE(MulticastParamXml().parseDomainXmlNode(node, list)) << lost;
        EXPECT_EQ(3U, list.size()) << lost;
        EXPECT_EQ("", output.text());
    }
}

TEST(MulticastParamXml, LeavesWhatANodeLacks)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<Any><MulticastParam Interval='3' /><Other /></Any>", node));
    std::vector<MulticastParam> list;
    ASSERT_TRUE(MulticastParamXml().parseDomainXmlNode(node, list));
    ASSERT_EQ(2U, list.size());
    MulticastParam expected;
    expected.setMulticastInterval(3);
    expectParam(expected, list[0]);
    expectParam(MulticastParam(), list[1]);
}

TEST(MulticastParamXml, NarrowsThePort)
{
    std::vector<MulticastParam> list;
    const std::string text = "<MulticastParamConfig><MulticastParam EnableFlag='' Port='70000' Interval='' IP='' "
                             "IPProtoVer='' /></MulticastParamConfig>";
    ASSERT_TRUE(MulticastParamXml().parseXmlString(text, list));
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse(text, node));
    ASSERT_TRUE(MulticastParamXml().parseDomainXmlNode(node, list));
    ASSERT_EQ(2U, list.size());
    EXPECT_EQ(4464, list[0].getMulticastPort());
    EXPECT_EQ(4464, list[1].getMulticastPort());
}

TEST(MulticastParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<MulticastParam> list(1, sample());
    EXPECT_FALSE(MulticastParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(MulticastParamXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}

TEST(MulticastParamXml, LeavesTheListOfAFailedRead)
{
    std::vector<MulticastParam> list(1, sample());
    EXPECT_FALSE(MulticastParamXml().parseXmlString("<MulticastParamConfig>", list));
    EXPECT_FALSE(MulticastParamXml().parseXmlString("<MulticastParamList />", list));
    EXPECT_EQ(1U, list.size());
}
