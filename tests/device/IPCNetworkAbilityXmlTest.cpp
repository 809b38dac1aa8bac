#include "device/IPCNetworkAbilityXml.h"

#include "tests/device/AbilitySample.h"
#include "tests/device/Elements.h"
#include "tests/support/Documents.h"

namespace
{

std::vector<IPCNetworkCardAbility> sample()
{
    return {sampleIPCNetworkCardAbility()};
}

void expectCards(const std::vector<IPCNetworkCardAbility>& expected, const std::vector<IPCNetworkCardAbility>& read)
{
    expectList(expected, read, expectIPCNetworkCardAbility);
}

} // namespace

TEST(IPCNetworkAbilityXml, WritesAnElement)
{
    IPCNetworkAbilityXml codec;
    codec.setIPCNetworkAbility(sample());
    codec.createXmlNode();
    ASSERT_NE(nullptr, codec.getXmlNode());
    EXPECT_TRUE(matchesGolden(printed(*codec.getXmlNode()), "device/IPCNetworkAbilityXml.element.xml"));
}

TEST(IPCNetworkAbilityXml, ReadsAnElement)
{
    CapturedOutput output;
    IPCNetworkAbilityXml codec;
    ASSERT_TRUE(readsElement(codec, golden("device/IPCNetworkAbilityXml.element.xml")));
    expectCards(sample(), codec.getIPCNetworkAbility());
    EXPECT_EQ("", output.text());
}

TEST(IPCNetworkAbilityXml, ReplacesTheListByItemsOfAnyName)
{
    IPCNetworkAbilityXml codec;
    codec.setIPCNetworkAbility(sample());
    ASSERT_TRUE(readsElement(codec, "<NetworkAbility><NetworkAbilityList><NetworkCardAbility /><!-- -->text<Other "
                                    "NetWorkCardId='9' /></NetworkAbilityList></NetworkAbility>"));
    std::vector<IPCNetworkCardAbility> expected(2);
    expected[1].setNetWorkCardId(9);
    expectCards(expected, codec.getIPCNetworkAbility());
}

TEST(IPCNetworkAbilityXml, WritesAndReadsAnEmptyList)
{
    IPCNetworkAbilityXml codec;
    codec.createXmlNode();
    const std::string text = printed(*codec.getXmlNode());
    EXPECT_EQ("<NetworkAbility>\n\t<NetworkAbilityList />\n</NetworkAbility>\n", text);

    IPCNetworkAbilityXml reader;
    reader.setIPCNetworkAbility(sample());
    ASSERT_TRUE(readsElement(reader, text));
    EXPECT_TRUE(reader.getIPCNetworkAbility().empty());
}

TEST(IPCNetworkAbilityXml, RefusesAnElementWithoutTheContainer)
{
    IPCNetworkAbilityXml codec;
    codec.setIPCNetworkAbility(sample());
    CapturedOutput output;
    EXPECT_FALSE(readsElement(
        codec, "<NetworkAbility><!--NetworkAbilityList--><NetworkCardAbility NetWorkCardId='9' /></NetworkAbility>"));
    expectCards(sample(), codec.getIPCNetworkAbility());
    EXPECT_EQ("", output.text());
}

TEST(IPCNetworkAbilityXml, RefusesToReadWithoutAnElement)
{
    IPCNetworkAbilityXml codec;
    EXPECT_EQ(nullptr, codec.getXmlNode());
    EXPECT_FALSE(codec.parseXmlNode());
    codec.createXmlNode();
    EXPECT_TRUE(codec.parseXmlNode());
}

TEST(IPCNetworkAbilityXml, DoesNothingWithTexts)
{
    IPCNetworkAbilityXml codec;
    codec.setIPCNetworkAbility(sample());
    codec.setXmlString("text");
    EXPECT_TRUE(codec.createXmlString());
    EXPECT_TRUE(codec.parseXmlString());
    EXPECT_EQ("text", codec.getXmlString());
    EXPECT_EQ(nullptr, codec.getXmlNode());
    expectCards(sample(), codec.getIPCNetworkAbility());
}

TEST(IPCNetworkAbilityXml, WritesBelowAParent)
{
    TiXmlDocument document;
    IPCNetworkAbilityXml::writeElement(document, sample());
    EXPECT_TRUE(matchesGolden(printed(document), "device/IPCNetworkAbilityXml.element.xml"));
}

TEST(IPCNetworkAbilityXml, ReplacesItsElementWithEveryWrite)
{
    IPCNetworkAbilityXml codec;
    codec.createXmlNode();
    codec.setIPCNetworkAbility(sample());
    codec.createXmlNode();
    EXPECT_TRUE(matchesGolden(printed(*codec.getXmlNode()), "device/IPCNetworkAbilityXml.element.xml"));
}
