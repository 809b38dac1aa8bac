#include "device/PIRAlarmAbilityXml.h"

#include "tests/device/Elements.h"
#include "tests/support/Documents.h"

TEST(PIRAlarmAbilityXml, WritesAnElement)
{
    PIRAlarmAbilityXml codec;
    PIRAlarmAbility ability;
    ability.setPIRAlarmSupportFlag(true);
    codec.setPIRAlarmAbility(ability);
    codec.createXmlNode();
    ASSERT_NE(nullptr, codec.getXmlNode());
    EXPECT_TRUE(matchesGolden(printed(*codec.getXmlNode()), "device/PIRAlarmAbilityXml.element.xml"));
}

TEST(PIRAlarmAbilityXml, ReadsAnElement)
{
    PIRAlarmAbilityXml codec;
    ASSERT_TRUE(readsElement(codec, golden("device/PIRAlarmAbilityXml.element.xml")));
    EXPECT_TRUE(codec.getPIRAlarmAbility().getPIRAlarmSupportFlag());
}

TEST(PIRAlarmAbilityXml, GivesFalseWithoutTheFlag)
{
    PIRAlarmAbilityXml codec;
    codec.getPIRAlarmAbility().setPIRAlarmSupportFlag(true);
    CapturedOutput output;
    ASSERT_TRUE(readsElement(codec, "<PIRAlarmAbility><PIRAlarmAbilityItem /></PIRAlarmAbility>"));
    EXPECT_FALSE(codec.getPIRAlarmAbility().getPIRAlarmSupportFlag());
    EXPECT_EQ("", output.text());
}

TEST(PIRAlarmAbilityXml, RefusesAnElementWithoutTheItem)
{
    PIRAlarmAbilityXml codec;
    codec.getPIRAlarmAbility().setPIRAlarmSupportFlag(true);
    CapturedOutput output;
    EXPECT_FALSE(readsElement(codec, "<PIRAlarmAbility><!--PIRAlarmAbilityItem--></PIRAlarmAbility>"));
    EXPECT_EQ("m_pobjPIRAlarmAbilityNode->getConfigNode-------Failed\n", output.text());
    EXPECT_TRUE(codec.getPIRAlarmAbility().getPIRAlarmSupportFlag());
}

TEST(PIRAlarmAbilityXml, RefusesToReadWithoutAnElement)
{
    PIRAlarmAbilityXml codec;
    CapturedOutput output;
    EXPECT_FALSE(codec.parseXmlNode());
    EXPECT_EQ("objPIRAlarmAbilityNode->getAllConfigNodeList-------Failed\n", output.text());
    EXPECT_EQ(nullptr, codec.getXmlNode());
}

TEST(PIRAlarmAbilityXml, DoesNothingWithTexts)
{
    PIRAlarmAbilityXml codec;
    codec.getPIRAlarmAbility().setPIRAlarmSupportFlag(true);
    codec.setXmlString("text");
    EXPECT_TRUE(codec.createXmlString());
    EXPECT_TRUE(codec.parseXmlString());
    EXPECT_EQ("text", codec.getXmlString());
    EXPECT_EQ(nullptr, codec.getXmlNode());
    EXPECT_TRUE(codec.getPIRAlarmAbility().getPIRAlarmSupportFlag());
}

TEST(PIRAlarmAbilityXml, WritesBelowAParent)
{
    TiXmlElement parent("Parent");
    PIRAlarmAbility ability;
    PIRAlarmAbilityXml::writeElement(parent, ability);
    PIRAlarmAbilityXml codec;
    codec.setPIRAlarmAbility(ability);
    codec.createXmlNode();
    parent.InsertEndChild(*codec.getXmlNode());
    EXPECT_EQ(printed(*parent.FirstChild()), printed(*parent.LastChild()));
}

TEST(PIRAlarmAbilityXml, ReplacesItsElementWithEveryWrite)
{
    PIRAlarmAbilityXml codec;
    codec.createXmlNode();
    codec.getPIRAlarmAbility().setPIRAlarmSupportFlag(true);
    codec.createXmlNode();
    EXPECT_TRUE(matchesGolden(printed(*codec.getXmlNode()), "device/PIRAlarmAbilityXml.element.xml"));
    EXPECT_TRUE(codec.parseXmlNode());
}
