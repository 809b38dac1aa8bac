#include "device/SensorAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/Elements.h"
#include "tests/support/Documents.h"

namespace
{

SensorAbility sample()
{
    SensorControllerOpenType type;
    type.setType(3);
    SensorAbility ability;
    ability.getSensorControllerOpenTypeList().push_back(type);
    return ability;
}

void expectSensorControllerOpenType(const SensorControllerOpenType& expected, const SensorControllerOpenType& read)
{
    EXPECT_EQ(expected.getType(), read.getType());
}

void expectSensorAbility(const SensorAbility& expected, const SensorAbility& read)
{
    expectList(expected.getSensorControllerOpenTypeList(), read.getSensorControllerOpenTypeList(),
               expectSensorControllerOpenType);
}

} // namespace

TEST(SensorAbilityXml, Writes)
{
    SensorAbilityXml codec;
    codec.setSensorAbility(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/SensorAbilityXml.document.xml"));
}

TEST(SensorAbilityXml, Reads)
{
    CapturedOutput output;
    SensorAbilityXml codec;
    ASSERT_TRUE(reads(codec, golden("device/SensorAbilityXml.document.xml")));
    expectSensorAbility(sample(), codec.getSensorAbility());
    EXPECT_EQ("", output.text());
}

TEST(SensorAbilityXml, WritesAndReadsAnEmptyList)
{
    SensorAbilityXml codec;
    EXPECT_EQ("<SensorAbility>\n\t<SensorController />\n</SensorAbility>\n", written(codec));

    SensorAbilityXml reader;
    reader.setSensorAbility(sample());
    ASSERT_TRUE(reads(
        reader,
        "<SensorAbility><SensorController>text<!--SensorControllerOpenType--></SensorController></SensorAbility>"));
    expectSensorAbility(SensorAbility(), reader.getSensorAbility());
}

TEST(SensorAbilityXml, ReplacesTheListByItemsOfAnyName)
{
    CapturedOutput output;
    SensorAbilityXml codec;
    codec.setSensorAbility(sample());
    ASSERT_TRUE(reads(codec, "<SensorAbility><SensorController><SensorControllerOpenType /><!-- -->text<Other type='9' "
                             "/></SensorController></SensorAbility>"));
    SensorAbility expected;
    expected.getSensorControllerOpenTypeList().resize(2);
    expected.getSensorControllerOpenTypeList()[1].setType(9);
    expectSensorAbility(expected, codec.getSensorAbility());
    EXPECT_EQ("", output.text());
}

TEST(SensorAbilityXml, RefusesATextWithoutTheContainer)
{
    CapturedOutput output;
    SensorAbilityXml codec;
    codec.setSensorAbility(sample());
    EXPECT_FALSE(
        reads(codec, "<SensorAbility><!--SensorController--><SensorControllerOpenType type='9' /></SensorAbility>"));
    expectSensorAbility(sample(), codec.getSensorAbility());
    EXPECT_EQ("", output.text());
}

TEST(SensorAbilityXml, ReadsAnElementOfAParent)
{
    TiXmlDocument document;
    document.Parse(golden("device/SensorAbilityXml.document.xml").c_str());
    SensorAbilityXml codec;
    codec.setXmlNode(document.RootElement());
    EXPECT_EQ(document.RootElement(), codec.getXmlNode());
    ASSERT_TRUE(codec.parseXmlNode());
    expectSensorAbility(sample(), codec.getSensorAbility());
}

TEST(SensorAbilityXml, RefusesToReadWithoutAnElement)
{
    SensorAbilityXml codec;
    EXPECT_EQ(nullptr, codec.getXmlNode());
    EXPECT_FALSE(codec.parseXmlNode());
    codec.createXmlNode();
    EXPECT_TRUE(codec.parseXmlNode());
}

TEST(SensorAbilityXml, ReplacesItsTreeWithEveryWrite)
{
    SensorAbilityXml codec;
    written(codec);
    codec.setSensorAbility(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/SensorAbilityXml.document.xml"));
}

TEST(SensorAbilityXml, WritesBelowAParent)
{
    TiXmlDocument document;
    SensorAbilityXml::writeElement(document, sample());
    EXPECT_TRUE(matchesGolden(printed(document), "device/SensorAbilityXml.document.xml"));
}
