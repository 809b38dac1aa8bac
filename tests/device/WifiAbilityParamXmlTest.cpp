#include "device/WifiAbilityParamXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/Elements.h"
#include "tests/support/Documents.h"

TEST(WifiAbilityParamXml, Writes)
{
    WifiAbilityParamXml codec;
    codec.setWifiAbilityParam(sampleWifiAbilityParam());
    EXPECT_TRUE(matchesGolden(written(codec), "device/WifiAbilityParamXml.document.xml"));
}

TEST(WifiAbilityParamXml, Reads)
{
    CapturedOutput output;
    WifiAbilityParamXml codec;
    ASSERT_TRUE(reads(codec, golden("device/WifiAbilityParamXml.document.xml")));
    expectWifiAbilityParam(sampleWifiAbilityParam(), codec.getWifiAbilityParam());
    EXPECT_EQ("", output.text());
}

TEST(WifiAbilityParamXml, ResetsWhatTheItemLacks)
{
    CapturedOutput output;
    WifiAbilityParamXml codec;
    codec.setWifiAbilityParam(sampleWifiAbilityParam());
    ASSERT_TRUE(reads(codec, "<WifiAbilityParam><Other />text<WifiAbilityParamItem /></WifiAbilityParam>"));
    expectWifiAbilityParam(WifiAbilityParam(), codec.getWifiAbilityParam());
    EXPECT_EQ("", output.text());
}

TEST(WifiAbilityParamXml, RefusesATextWithoutTheItem)
{
    CapturedOutput output;
    WifiAbilityParamXml codec;
    codec.setWifiAbilityParam(sampleWifiAbilityParam());
    EXPECT_FALSE(reads(codec, "<WifiAbilityParam><!--WifiAbilityParamItem--><Other /></WifiAbilityParam>"));
    expectWifiAbilityParam(sampleWifiAbilityParam(), codec.getWifiAbilityParam());
    EXPECT_EQ("", output.text());
}

TEST(WifiAbilityParamXml, ReadsAnElementOfAParent)
{
    TiXmlDocument document;
    document.Parse(golden("device/WifiAbilityParamXml.document.xml").c_str());
    WifiAbilityParamXml codec;
    codec.setXmlNode(document.RootElement());
    EXPECT_EQ(document.RootElement(), codec.getXmlNode());
    ASSERT_TRUE(codec.parseXmlNode());
    expectWifiAbilityParam(sampleWifiAbilityParam(), codec.getWifiAbilityParam());
}

TEST(WifiAbilityParamXml, RefusesToReadWithoutAnElement)
{
    WifiAbilityParamXml codec;
    EXPECT_EQ(nullptr, codec.getXmlNode());
    EXPECT_FALSE(codec.parseXmlNode());
    codec.createXmlNode();
    EXPECT_TRUE(codec.parseXmlNode());
}

TEST(WifiAbilityParamXml, ReplacesItsTreeWithEveryWrite)
{
    WifiAbilityParamXml codec;
    written(codec);
    codec.setWifiAbilityParam(sampleWifiAbilityParam());
    EXPECT_TRUE(matchesGolden(written(codec), "device/WifiAbilityParamXml.document.xml"));
}

TEST(WifiAbilityParamXml, WritesBelowAParent)
{
    TiXmlDocument document;
    WifiAbilityParamXml::writeElement(document, sampleWifiAbilityParam());
    EXPECT_TRUE(matchesGolden(printed(document), "device/WifiAbilityParamXml.document.xml"));
}
