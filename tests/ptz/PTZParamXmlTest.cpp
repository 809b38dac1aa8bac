#include "ptz/PTZParamXml.h"

#include "tests/ptz/PTZParamSample.h"
#include "tests/support/Documents.h"

using Heads = std::vector<PTZParam>;

TEST(PTZParamXml, Writes)
{
    PTZParamXml codec;
    codec.setPTZParamList({sampleHead(), PTZParam()});
    EXPECT_TRUE(matchesGolden(written(codec), "ptz/PTZParamXml.document.xml"));
}

TEST(PTZParamXml, WritesAnEmptyList)
{
    PTZParamXml codec;
    EXPECT_EQ("<PTZParamList />\n", written(codec));
}

TEST(PTZParamXml, ReadsBehindWhatTheListHolds)
{
    PTZParamXml codec;
    codec.setPTZParamList({headOfAnEmptyNode()});
    ASSERT_TRUE(reads(codec, golden("ptz/PTZParamXml.document.xml")));
    expectHeads({headOfAnEmptyNode(), sampleHead(), PTZParam()}, codec.getPTZParamList());
}

TEST(PTZParamXml, WalksOnFromTheFirstHeadOverElementsOfAnyNameAndLeavesWhatTheyLackAtZero)
{
    PTZParamXml codec;
    ASSERT_TRUE(
        reads(codec, "<PTZParamList><Other ComId='1' /><PTZParam /><!-- -->text<Other ComId='3' /></PTZParamList>"));
    PTZParam other;
    other.setComId(3);
    expectHeads({PTZParam(), other}, codec.getPTZParamList());
}

TEST(PTZParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(PTZParamXml().createXmlString(sampleHead(), text));
    EXPECT_TRUE(matchesGolden(text, "ptz/PTZParamXml.node.xml"));
}

TEST(PTZParamXml, ReadsNodes)
{
    PTZParam read;
    ASSERT_TRUE(PTZParamXml().parseXmlString(golden("ptz/PTZParamXml.node.xml"), read));
    expectHead(sampleHead(), read);
}

TEST(PTZParamXml, GivesTheDefaultsOfWhatANodeLacks)
{
    CapturedOutput output;
    PTZParam read = sampleHead();
    ASSERT_TRUE(PTZParamXml().parseXmlString("<PTZParam />", read));
    expectHead(headOfAnEmptyNode(), read);
    EXPECT_EQ("", output.text());
}

TEST(PTZParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(PTZParamXml().createXmlString(Heads{sampleHead(), PTZParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "ptz/PTZParamXml.list.xml"));
    ASSERT_TRUE(PTZParamXml().createXmlString(Heads(), text));
    EXPECT_EQ("<PTZParamList />\n", text);
}

TEST(PTZParamXml, ReadsListsBehindWhatTheyHold)
{
    Heads list(1, sampleHead());
    ASSERT_TRUE(PTZParamXml().parseXmlString(golden("ptz/PTZParamXml.list.xml"), list));
    expectHeads({sampleHead(), sampleHead(), PTZParam()}, list);
}

TEST(PTZParamXml, ReadsItemsOfAnyName)
{
    Heads list;
    ASSERT_TRUE(PTZParamXml().parseXmlString("<PTZParamList>text<!-- --><Other /></PTZParamList>", list));
    expectHeads({headOfAnEmptyNode()}, list);
}

TEST(PTZParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    PTZParam read = sampleHead();
    Heads list(1, sampleHead());
    EXPECT_FALSE(PTZParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(PTZParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(PTZParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(PTZParamXml().parseDomainXmlNode(empty, list));
    expectHead(sampleHead(), read);
    EXPECT_EQ(1U, list.size());
}
