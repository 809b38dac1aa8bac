#include "media/UserDefineParamXml.h"

#include "tests/media/UserDefineSample.h"
#include "tests/support/Documents.h"

#include <type_traits>

static_assert(!std::is_convertible<UserDefineParamXml*, IDomainXml*>::value, "nobody holds it by its base");

TEST(UserDefineParamXml, Writes)
{
    UserDefineParamXml codec;
    codec.setUserDefineParamList({sampleUserParam(11), sampleUserParam(31)});
    EXPECT_TRUE(matchesGolden(written(codec), "media/UserDefineParamXml.document.xml"));
}

TEST(UserDefineParamXml, WritesAnEmptyList)
{
    UserDefineParamXml codec;
    EXPECT_EQ("<UserDefineParamList />\n", written(codec));
}

TEST(UserDefineParamXml, ReadsBehindWhatTheListHolds)
{
    UserDefineParamXml codec;
    codec.setUserDefineParamList({sampleUserParam(71)});
    ASSERT_TRUE(reads(codec, golden("media/UserDefineParamXml.document.xml")));
    ASSERT_EQ(3U, codec.getUserDefineParamList().size());
    expectUserParam(sampleUserParam(71), codec.getUserDefineParamList()[0]);
    expectUserParam(sampleUserParam(11), codec.getUserDefineParamList()[1]);
    expectUserParam(sampleUserParam(31), codec.getUserDefineParamList()[2]);
}

TEST(UserDefineParamXml, WritesTheContainerOfNoItems)
{
    static const char* const expected =
        "<UserDefineParamList>\n\t<UserDefineParam UserDefineParamType=\"\">\n"
        "\t\t<UserDefineParamItemList />\n\t</UserDefineParam>\n</UserDefineParamList>\n";
    UserDefineParamXml codec;
    codec.setUserDefineParamList({UserDefineParam()});
    EXPECT_EQ(expected, written(codec));
    std::string text;
    ASSERT_TRUE(UserDefineParamXml().createXmlString({UserDefineParam()}, text));
    EXPECT_EQ(expected, text);
}

TEST(UserDefineParamXml, ReadsItemsOfItsNameOnlyAndLeavesWhatTheyLack)
{
    CapturedOutput output;
    UserDefineParamXml codec;
    ASSERT_TRUE(reads(codec, "<UserDefineParamList>text<!--UserDefineParam--><UserDefineParam />"
                             "<Other UserDefineParamType='x' /></UserDefineParamList>"));
    ASSERT_EQ(1U, codec.getUserDefineParamList().size());
    expectUserParam(UserDefineParam(), codec.getUserDefineParamList()[0]);
    EXPECT_EQ("", output.text());
}

TEST(UserDefineParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(UserDefineParamXml().createXmlString({sampleUserParam(11), sampleUserParam(31)}, text));
    EXPECT_TRUE(matchesGolden(text, "media/UserDefineParamXml.list.xml"));
    ASSERT_TRUE(UserDefineParamXml().createXmlString(std::vector<UserDefineParam>(), text));
    EXPECT_EQ("<UserDefineParamList />\n", text);
}

TEST(UserDefineParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<UserDefineParam> list(1, sampleUserParam(71));
    ASSERT_TRUE(UserDefineParamXml().parseXmlString(golden("media/UserDefineParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectUserParam(sampleUserParam(71), list[0]);
    expectUserParam(sampleUserParam(11), list[1]);
    expectUserParam(sampleUserParam(31), list[2]);
}

TEST(UserDefineParamXml, ReadsItemsOfAnyNameAsListsAndPrintsALineForWhatTheyLack)
{
    CapturedOutput output;
    std::vector<UserDefineParam> list;
    ASSERT_TRUE(
        UserDefineParamXml().parseXmlString("<UserDefineParamList>text<!-- --><Other /></UserDefineParamList>", list));
    ASSERT_EQ(1U, list.size());
    expectUserParam(UserDefineParam(), list[0]);
    EXPECT_EQ("UserDefineParamXml::parseDomainXmlNode node = NODE_USER_DEFINE_PARAM_TYPE failed \n", output.text());
}

TEST(UserDefineParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<UserDefineParam> list(1, sampleUserParam(11));
    EXPECT_FALSE(UserDefineParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(UserDefineParamXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}
