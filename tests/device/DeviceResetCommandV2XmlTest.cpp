#include "device/DeviceResetCommandV2Xml.h"

#include "tests/support/Documents.h"

using Numbers = std::vector<int>;

TEST(DeviceResetCommandV2Xml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(DeviceResetCommandV2Xml().createXmlString(Numbers{1, 4, -2}, text));
    EXPECT_TRUE(matchesGolden(text, "device/DeviceResetCommandV2Xml.list.xml"));
    ASSERT_TRUE(DeviceResetCommandV2Xml().createXmlString(Numbers(), text));
    EXPECT_EQ("<HoldTypeList />\n", text);
}

TEST(DeviceResetCommandV2Xml, ReadsListsBehindWhatTheyHold)
{
    Numbers list = {9};
    ASSERT_TRUE(DeviceResetCommandV2Xml().parseXmlString(golden("device/DeviceResetCommandV2Xml.list.xml"), list));
    EXPECT_EQ((Numbers{9, 1, 4, -2}), list);
}

TEST(DeviceResetCommandV2Xml, ReadsItemsOfAnyNameAndTakesWhatIsMissingForZero)
{
    Numbers list;
    ASSERT_TRUE(DeviceResetCommandV2Xml().parseXmlString(
        "<HoldTypeList>text<!--HoldType--><Other Type='7' /><HoldType /><HoldType Type='all' /></HoldTypeList>", list));
    EXPECT_EQ((Numbers{7, 0, 0}), list);
}

TEST(DeviceResetCommandV2Xml, LeavesTheListOfAFailedRead)
{
    Numbers list = {9};
    EXPECT_FALSE(DeviceResetCommandV2Xml().parseXmlString("<HoldType Type='1' />", list));
    EXPECT_FALSE(DeviceResetCommandV2Xml().parseXmlString("<HoldTypeList><HoldType Type='1' />", list));
    EXPECT_EQ(Numbers{9}, list);
}
