#include "media/BlindAreaParamV2Xml.h"

#include "tests/media/RegionSample.h"
#include "tests/support/Documents.h"

namespace
{

BlindAreaParamV2 sample()
{
    BlindAreaParamV2 area;
    area.setAreaId(4);
    area.setEnableFlag(true);
    area.setAreaName("Till & safe");
    area.setColor(sampleColor());
    area.setAreaParamV2(sampleFractionalArea());
    return area;
}

void expectBlindArea(const BlindAreaParamV2& expected, const BlindAreaParamV2& area)
{
    EXPECT_EQ(expected.getAreaId(), area.getAreaId());
    EXPECT_EQ(expected.getEnableFlag(), area.getEnableFlag());
    EXPECT_EQ(expected.getAreaName(), area.getAreaName());
    expectColor(expected.getColor(), area.getColor());
    expectFractionalArea(expected.getAreaParamV2(), area.getAreaParamV2());
}

} // namespace

TEST(BlindAreaParamV2Xml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(BlindAreaParamV2Xml().createXmlString({sample(), BlindAreaParamV2()}, text));
    EXPECT_TRUE(matchesGolden(text, "media/BlindAreaParamV2Xml.list.xml"));
    ASSERT_TRUE(BlindAreaParamV2Xml().createXmlString(std::vector<BlindAreaParamV2>(), text));
    EXPECT_EQ("<BlindAreaParamList />\n", text);
}

TEST(BlindAreaParamV2Xml, ReadsListsBehindWhatTheyHold)
{
    std::vector<BlindAreaParamV2> list(1, sample());
    ASSERT_TRUE(BlindAreaParamV2Xml().parseXmlString(golden("media/BlindAreaParamV2Xml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectBlindArea(sample(), list[0]);
    expectBlindArea(sample(), list[1]);
    expectBlindArea(BlindAreaParamV2(), list[2]);
}

TEST(BlindAreaParamV2Xml, TakesDefaultsForWhatIsMissing)
{
    CapturedOutput output;
    std::vector<BlindAreaParamV2> list;
    ASSERT_TRUE(
        BlindAreaParamV2Xml().parseXmlString("<BlindAreaParamList><BlindAreaParam /></BlindAreaParamList>", list));
    ASSERT_EQ(1U, list.size());
    BlindAreaParamV2 expected;
    expected.setAreaId(-1);
    expectBlindArea(expected, list[0]);
    EXPECT_EQ("", output.text());
}

TEST(BlindAreaParamV2Xml, GoesOnPastAnAreaThatLacksASide)
{
    std::vector<BlindAreaParamV2> list;
    ASSERT_TRUE(BlindAreaParamV2Xml().parseXmlString(
        "<BlindAreaParamList>text<!--BlindAreaParam-->"
        "<BlindAreaParam AreaId='1'><AreaParam TopX='1' TopY='2' Width='3' /><ColorParam Red='9' /></BlindAreaParam>"
        "<Other AreaId='2' /></BlindAreaParamList>",
        list));
    ASSERT_EQ(2U, list.size());
    BlindAreaParamV2 expected;
    expected.setAreaId(1);
    expected.getColor().setRed(9);
    expectBlindArea(expected, list[0]);
    EXPECT_EQ(2, list[1].getAreaId());
}
