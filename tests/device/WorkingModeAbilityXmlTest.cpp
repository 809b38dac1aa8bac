#include "device/WorkingModeAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/Elements.h"
#include "tests/support/Documents.h"

namespace
{

std::vector<WorkingMode> sample()
{
    return {sampleWorkingMode()};
}

void expectModes(const std::vector<WorkingMode>& expected, const std::vector<WorkingMode>& read)
{
    expectList(expected, read, expectWorkingMode);
}

} // namespace

TEST(WorkingModeAbilityXml, WritesAnElement)
{
    WorkingModeAbilityXml codec;
    codec.setWorkingModeAbility(sample());
    codec.createXmlNode();
    ASSERT_NE(nullptr, codec.getXmlNode());
    EXPECT_TRUE(matchesGolden(printed(*codec.getXmlNode()), "device/WorkingModeAbilityXml.element.xml"));
}

TEST(WorkingModeAbilityXml, ReadsAnElement)
{
    CapturedOutput output;
    WorkingModeAbilityXml codec;
    ASSERT_TRUE(readsElement(codec, golden("device/WorkingModeAbilityXml.element.xml")));
    expectModes(sample(), codec.getWorkingModeAbility());
    EXPECT_EQ("", output.text());
}

TEST(WorkingModeAbilityXml, ReplacesTheListByItemsOfAnyName)
{
    WorkingModeAbilityXml codec;
    codec.setWorkingModeAbility(sample());
    ASSERT_TRUE(readsElement(codec, "<WorkingModeAbility><WorkingModeList><WorkingMode /><!-- -->text<Other ModeID='9' "
                                    "/></WorkingModeList></WorkingModeAbility>"));
    std::vector<WorkingMode> expected(2);
    expected[1].setModeID(9);
    expectModes(expected, codec.getWorkingModeAbility());
}

TEST(WorkingModeAbilityXml, WritesAndReadsAnEmptyList)
{
    WorkingModeAbilityXml codec;
    codec.createXmlNode();
    const std::string text = printed(*codec.getXmlNode());
    EXPECT_EQ("<WorkingModeAbility>\n\t<WorkingModeList />\n</WorkingModeAbility>\n", text);

    WorkingModeAbilityXml reader;
    reader.setWorkingModeAbility(sample());
    ASSERT_TRUE(readsElement(reader, text));
    EXPECT_TRUE(reader.getWorkingModeAbility().empty());
}

TEST(WorkingModeAbilityXml, RefusesAnElementWithoutTheContainer)
{
    WorkingModeAbilityXml codec;
    codec.setWorkingModeAbility(sample());
    CapturedOutput output;
    EXPECT_FALSE(readsElement(
        codec, "<WorkingModeAbility><!--WorkingModeList--><WorkingMode ModeID='9' /></WorkingModeAbility>"));
    expectModes(sample(), codec.getWorkingModeAbility());
    EXPECT_EQ("", output.text());
}

TEST(WorkingModeAbilityXml, RefusesToReadWithoutAnElement)
{
    WorkingModeAbilityXml codec;
    EXPECT_EQ(nullptr, codec.getXmlNode());
    EXPECT_FALSE(codec.parseXmlNode());
    codec.createXmlNode();
    EXPECT_TRUE(codec.parseXmlNode());
}

TEST(WorkingModeAbilityXml, DoesNothingWithTexts)
{
    WorkingModeAbilityXml codec;
    codec.setWorkingModeAbility(sample());
    codec.setXmlString("text");
    EXPECT_TRUE(codec.createXmlString());
    EXPECT_TRUE(codec.parseXmlString());
    EXPECT_EQ("text", codec.getXmlString());
    EXPECT_EQ(nullptr, codec.getXmlNode());
    expectModes(sample(), codec.getWorkingModeAbility());
}

TEST(WorkingModeAbilityXml, WritesBelowAParent)
{
    TiXmlDocument document;
    WorkingModeAbilityXml::writeElement(document, sample());
    EXPECT_TRUE(matchesGolden(printed(document), "device/WorkingModeAbilityXml.element.xml"));
}

TEST(WorkingModeAbilityXml, ReplacesItsElementWithEveryWrite)
{
    WorkingModeAbilityXml codec;
    codec.createXmlNode();
    codec.setWorkingModeAbility(sample());
    codec.createXmlNode();
    EXPECT_TRUE(matchesGolden(printed(*codec.getXmlNode()), "device/WorkingModeAbilityXml.element.xml"));
}
