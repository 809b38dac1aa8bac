#include "core/StringListXml.h"

#include "tests/support/Documents.h"

using Strings = std::vector<std::string>;

TEST(StringListXml, Writes)
{
    std::string text;
    ASSERT_TRUE(StringListXml().createXmlString(Strings{"first", "", "a < b"}, text));
    EXPECT_TRUE(matchesGolden(text, "core/StringListXml.list.xml"));
}

TEST(StringListXml, WritesAnEmptyList)
{
    std::string text;
    ASSERT_TRUE(StringListXml().createXmlString(Strings(), text));
    EXPECT_EQ("<StringParamList />\n", text);
}

TEST(StringListXml, ReadsBehindWhatTheListHolds)
{
    Strings list = {"before"};
    ASSERT_TRUE(StringListXml().parseXmlString(golden("core/StringListXml.list.xml"), list));
    EXPECT_EQ((Strings{"before", "first", "", "a < b"}), list);
}

TEST(StringListXml, ReadsItemsOfItsNameOnly)
{
    Strings list;
    ASSERT_TRUE(StringListXml().parseXmlString(
        "<StringParamList>text<!--StringParam--><Other String='x' /><StringParam /></StringParamList>", list));
    EXPECT_EQ(Strings{""}, list);
    ASSERT_TRUE(StringListXml().parseXmlString("<StringParamList />", list));
    EXPECT_EQ(Strings{""}, list);
}
