#include "network/WifiParamXml.h"

#include "tests/network/WirelessSample.h"
#include "tests/support/Documents.h"

TEST(WifiParamXml, Writes)
{
    WifiParamXml codec;
    codec.setWifiParam(sampleWifi());
    EXPECT_TRUE(matchesGolden(written(codec), "network/WifiParamXml.document.xml"));
}

TEST(WifiParamXml, Reads)
{
    WifiParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/WifiParamXml.document.xml")));
    expectWifi(sampleWifi(), codec.getWifiParam());
}

TEST(WifiParamXml, LeavesWhatIsMissing)
{
    WifiParamXml codec;
    codec.setWifiParam(sampleWifi());
    ASSERT_TRUE(reads(codec, "<WifiParam />"));
    expectWifi(sampleWifi(), codec.getWifiParam());
}

TEST(WifiParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(WifiParamXml().createXmlString(sampleWifi(), text));
    EXPECT_TRUE(matchesGolden(text, "network/WifiParamXml.node.xml"));
}

TEST(WifiParamXml, ReadsNodes)
{
    WifiParam read;
    ASSERT_TRUE(WifiParamXml().parseXmlString(golden("network/WifiParamXml.node.xml"), read));
    expectWifi(sampleWifi(), read);
}

TEST(WifiParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    WifiParam read = sampleWifi();
    ASSERT_TRUE(WifiParamXml().parseXmlString("<WifiParam />", read));
    expectWifi(WifiParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(WifiParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(WifiParamXml().createXmlString({sampleWifi(), WifiParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/WifiParamXml.list.xml"));
    ASSERT_TRUE(WifiParamXml().createXmlString(std::vector<WifiParam>(), text));
    EXPECT_EQ("<WifiParamList />\n", text);
}

TEST(WifiParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<WifiParam> list(1, sampleWifi());
    ASSERT_TRUE(WifiParamXml().parseXmlString(golden("network/WifiParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectWifi(sampleWifi(), list[0]);
    expectWifi(sampleWifi(), list[1]);
    expectWifi(WifiParam(), list[2]);
}

TEST(WifiParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    WifiParam read = sampleWifi();
    std::vector<WifiParam> list(1, sampleWifi());
    EXPECT_FALSE(WifiParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(WifiParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(WifiParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(WifiParamXml().parseDomainXmlNode(empty, list));
    expectWifi(sampleWifi(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(WifiParamXml, RefusesTheRootOfTheOtherKind)
{
    WifiParam read;
    std::vector<WifiParam> list;
    EXPECT_FALSE(WifiParamXml().parseXmlString(golden("network/WifiParamXml.list.xml"), read));
    EXPECT_FALSE(WifiParamXml().parseXmlString(golden("network/WifiParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}

TEST(WifiParamXml, ReadsEachFlagByItself)
{
    WifiParamXml codec;
    codec.setWifiParam(sampleWifi());
    ASSERT_TRUE(reads(codec, "<WifiParam EnableFlag='false' UseDynamicIPFlag='true' />"));
    EXPECT_FALSE(codec.getWifiParam().getEnableFlag());
    EXPECT_TRUE(codec.getWifiParam().getUseDynamicIPFlag());

    WifiParam read = sampleWifi();
    ASSERT_TRUE(WifiParamXml().parseXmlString("<WifiParam UseDynamicIPFlag='true' />", read));
    EXPECT_FALSE(read.getEnableFlag());
    EXPECT_TRUE(read.getUseDynamicIPFlag());
}
