#include "network/ZT_WifiParamXml.h"

#include "tests/support/Documents.h"

namespace
{

ZT_WifiParam sample()
{
    ZT_WifiParam param;
    param.setEnableFlag(true);
    param.setSSID("Yard");
    param.setPassword("not told");
    param.setUseDynamicIPFlag(false);
    param.setStaticIP("192.0.2.21");
    param.setSubnetMask("255.255.255.0");
    param.setGateway("192.0.2.1");
    param.setDNS("192.0.2.53");
    return param;
}

void expectParam(const ZT_WifiParam& expected, const ZT_WifiParam& param)
{
    EXPECT_EQ(expected.getEnableFlag(), param.getEnableFlag());
    EXPECT_EQ(expected.getSSID(), param.getSSID());
    EXPECT_TRUE(expected.getPassword() == param.getPassword()); // without the texts
    EXPECT_EQ(expected.getUseDynamicIPFlag(), param.getUseDynamicIPFlag());
    EXPECT_EQ(expected.getStaticIP(), param.getStaticIP());
    EXPECT_EQ(expected.getSubnetMask(), param.getSubnetMask());
    EXPECT_EQ(expected.getGateway(), param.getGateway());
    EXPECT_EQ(expected.getDNS(), param.getDNS());
}

} // namespace

TEST(ZT_WifiParamXml, Writes)
{
    ZT_WifiParamXml codec;
    codec.setZT_WifiParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/ZT_WifiParamXml.document.xml"));
}

TEST(ZT_WifiParamXml, Reads)
{
    ZT_WifiParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/ZT_WifiParamXml.document.xml")));
    expectParam(sample(), codec.getZT_WifiParam());
}

TEST(ZT_WifiParamXml, LeavesWhatIsMissing)
{
    ZT_WifiParamXml codec;
    codec.setZT_WifiParam(sample());
    ASSERT_TRUE(reads(codec, "<ZT_WifiParam />"));
    expectParam(sample(), codec.getZT_WifiParam());
}

TEST(ZT_WifiParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ZT_WifiParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/ZT_WifiParamXml.node.xml"));
}

TEST(ZT_WifiParamXml, ReadsNodes)
{
    ZT_WifiParam read;
    ASSERT_TRUE(ZT_WifiParamXml().parseXmlString(golden("network/ZT_WifiParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(ZT_WifiParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    ZT_WifiParam read = sample();
    ASSERT_TRUE(ZT_WifiParamXml().parseXmlString("<ZT_WifiParam />", read));
    expectParam(ZT_WifiParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(ZT_WifiParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(ZT_WifiParamXml().createXmlString({sample(), ZT_WifiParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/ZT_WifiParamXml.list.xml"));
    ASSERT_TRUE(ZT_WifiParamXml().createXmlString(std::vector<ZT_WifiParam>(), text));
    EXPECT_EQ("<ZT_WifiParamList />\n", text);
}

TEST(ZT_WifiParamXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<ZT_WifiParam> list(1, sample());
    ASSERT_TRUE(ZT_WifiParamXml().parseXmlString(golden("network/ZT_WifiParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectParam(sample(), list[0]);
    expectParam(sample(), list[1]);
    expectParam(ZT_WifiParam(), list[2]);
}

TEST(ZT_WifiParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ZT_WifiParam read = sample();
    std::vector<ZT_WifiParam> list(1, sample());
    EXPECT_FALSE(ZT_WifiParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ZT_WifiParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(ZT_WifiParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(ZT_WifiParamXml().parseDomainXmlNode(empty, list));
    expectParam(sample(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(ZT_WifiParamXml, RefusesTheRootOfTheOtherKind)
{
    ZT_WifiParam read;
    std::vector<ZT_WifiParam> list;
    EXPECT_FALSE(ZT_WifiParamXml().parseXmlString(golden("network/ZT_WifiParamXml.list.xml"), read));
    EXPECT_FALSE(ZT_WifiParamXml().parseXmlString(golden("network/ZT_WifiParamXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}

TEST(ZT_WifiParamXml, ReadsEachFlagByItself)
{
    ZT_WifiParamXml codec;
    codec.setZT_WifiParam(sample());
    ASSERT_TRUE(reads(codec, "<ZT_WifiParam ZT_EnableFlag='false' ZT_UseDynamicIPFlag='true' />"));
    EXPECT_FALSE(codec.getZT_WifiParam().getEnableFlag());
    EXPECT_TRUE(codec.getZT_WifiParam().getUseDynamicIPFlag());

    ZT_WifiParam read = sample();
    ASSERT_TRUE(ZT_WifiParamXml().parseXmlString("<ZT_WifiParam ZT_UseDynamicIPFlag='true' />", read));
    EXPECT_FALSE(read.getEnableFlag());
    EXPECT_TRUE(read.getUseDynamicIPFlag());
}

TEST(ZT_WifiParamXml, DoesNotReadTheUnprefixedTwin)
{
    ZT_WifiParam read;
    EXPECT_FALSE(ZT_WifiParamXml().parseXmlString(golden("network/WifiParamXml.node.xml"), read));
    ASSERT_TRUE(ZT_WifiParamXml().parseXmlString("<ZT_WifiParam SSID='Yard' DNS='192.0.2.53' />", read));
    expectParam(ZT_WifiParam(), read);
}
