#include "media/UserDefineParamItemXml.h"

#include "tests/media/UserDefineSample.h"
#include "tests/support/Documents.h"

TEST(UserDefineParamItemXml, Writes)
{
    UserDefineParamItemXml codec;
    codec.setUserDefineParamItemList({sampleUserItem(11), sampleUserItem(31)});
    EXPECT_TRUE(matchesGolden(written(codec), "media/UserDefineParamItemXml.document.xml"));
}

TEST(UserDefineParamItemXml, WritesAnEmptyList)
{
    UserDefineParamItemXml codec;
    EXPECT_EQ("<UserDefineParamItemList />\n", written(codec));
}

TEST(UserDefineParamItemXml, ReadsBehindWhatTheListHolds)
{
    UserDefineParamItemXml codec;
    codec.setUserDefineParamItemList({sampleUserItem(71)});
    ASSERT_TRUE(reads(codec, golden("media/UserDefineParamItemXml.document.xml")));
    ASSERT_EQ(3U, codec.getUserDefineParamItemList().size());
    expectUserItem(sampleUserItem(71), codec.getUserDefineParamItemList()[0]);
    expectUserItem(sampleUserItem(11), codec.getUserDefineParamItemList()[1]);
    expectUserItem(sampleUserItem(31), codec.getUserDefineParamItemList()[2]);
}

TEST(UserDefineParamItemXml, ReadsItemsOfItsNameOnlyAndLeavesWhatTheyLack)
{
    CapturedOutput output;
    UserDefineParamItemXml codec;
    ASSERT_TRUE(reads(codec, "<UserDefineParamItemList>text<!--UserDefineParamItem--><UserDefineParamItem />"
                             "<Other UserDefineParamItemType='x' /></UserDefineParamItemList>"));
    ASSERT_EQ(1U, codec.getUserDefineParamItemList().size());
    expectUserItem(UserDefineParamItem(), codec.getUserDefineParamItemList()[0]);
    EXPECT_EQ("", output.text());
}

TEST(UserDefineParamItemXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(UserDefineParamItemXml().createXmlString({sampleUserItem(11), sampleUserItem(31)}, text));
    EXPECT_TRUE(matchesGolden(text, "media/UserDefineParamItemXml.list.xml"));
    ASSERT_TRUE(UserDefineParamItemXml().createXmlString(std::vector<UserDefineParamItem>(), text));
    EXPECT_EQ("<UserDefineParamItemList />\n", text);
}

TEST(UserDefineParamItemXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<UserDefineParamItem> list(1, sampleUserItem(71));
    ASSERT_TRUE(UserDefineParamItemXml().parseXmlString(golden("media/UserDefineParamItemXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectUserItem(sampleUserItem(71), list[0]);
    expectUserItem(sampleUserItem(11), list[1]);
    expectUserItem(sampleUserItem(31), list[2]);
}

TEST(UserDefineParamItemXml, ReadsItemsOfAnyNameAsListsAndPrintsALineForWhatTheyLack)
{
    CapturedOutput output;
    std::vector<UserDefineParamItem> list;
    ASSERT_TRUE(UserDefineParamItemXml().parseXmlString(
        "<UserDefineParamItemList>text<!-- --><Other /></UserDefineParamItemList>", list));
    ASSERT_EQ(1U, list.size());
    expectUserItem(UserDefineParamItem(), list[0]);
    EXPECT_EQ("UserDefineParamItemXml::parseDomainXmlNode node = NODE_USER_DEFINE_PARAM_TIEM_TYPE failed \n"
              "UserDefineParamItemXml::parseDomainXmlNode node = NODE_USER_DEFINE_PARAM_TIEM_VALUE failed \n",
              output.text());
}

TEST(UserDefineParamItemXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<UserDefineParamItem> list(1, sampleUserItem(11));
    EXPECT_FALSE(UserDefineParamItemXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(UserDefineParamItemXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}
