#include "network/DDNSProviderXml.h"

#include "network/DDNSProviderListXml.h"
#include "tests/network/DDNSProviderSample.h"
#include "tests/support/Documents.h"

TEST(DDNSProviderXml, Writes)
{
    DDNSProviderXml codec;
    codec.setDDNSProvider(sampleProvider());
    EXPECT_TRUE(matchesGolden(written(codec), "network/DDNSProviderXml.document.xml"));
}

TEST(DDNSProviderXml, Reads)
{
    DDNSProviderXml codec;
    ASSERT_TRUE(reads(codec, golden("network/DDNSProviderXml.document.xml")));
    expectProvider(sampleProvider(), codec.getDDNSProvider());
}

TEST(DDNSProviderXml, ResetsWhatIsMissing)
{
    DDNSProviderXml codec;
    codec.setDDNSProvider(sampleProvider());
    ASSERT_TRUE(reads(codec, "<DDNSProvider />"));
    expectProvider(DDNSProvider(), codec.getDDNSProvider());
}

TEST(DDNSProviderXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(DDNSProviderXml().createXmlString({sampleProvider(), DDNSProvider()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/DDNSProviderXml.list.xml"));
    ASSERT_TRUE(DDNSProviderXml().createXmlString(std::vector<DDNSProvider>(), text));
    EXPECT_EQ("<DDNSProviderList />\n", text);
}

TEST(DDNSProviderXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<DDNSProvider> list(1, sampleProvider());
    ASSERT_TRUE(DDNSProviderXml().parseXmlString(golden("network/DDNSProviderXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectProvider(sampleProvider(), list[0]);
    expectProvider(sampleProvider(), list[1]);
    expectProvider(DDNSProvider(), list[2]);
}

TEST(DDNSProviderXml, ResetsWhatAnItemLacks)
{
    CapturedOutput output;
    std::vector<DDNSProvider> list;
    ASSERT_TRUE(DDNSProviderXml().parseXmlString("<DDNSProviderList>text<!-- --><Other /></DDNSProviderList>", list));
    ASSERT_EQ(1U, list.size());
    expectProvider(DDNSProvider(), list[0]);
    EXPECT_EQ("", output.text());
}

TEST(DDNSProviderXml, EmptiesTheNodeThatItWritesTo)
{
    SafePointer<DomainXmlNode> node;
    ASSERT_TRUE(DomainXmlNode::parse("<DDNSProviderList Old='1'><Child /></DDNSProviderList>", node));
    std::string text;
    ASSERT_TRUE(DDNSProviderXml().createDomainXmlNode({sampleProvider()}, node));
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ("<DDNSProviderList Old=\"1\">\n"
              "\t<DDNSProvider DDNSProviderId=\"3\" DDNSProviderName=\"Example names\" />\n"
              "</DDNSProviderList>\n",
              text);
    ASSERT_TRUE(DDNSProviderXml().createDomainXmlNode({}, node));
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_EQ("<DDNSProviderList Old=\"1\" />\n", text);
}

TEST(DDNSProviderXml, FindsDefaultsInATextOfTheOtherKind)
{
    std::string text;
    ASSERT_TRUE(DDNSProviderListXml().createXmlString(sampleProvider(), text));
    DDNSProviderXml codec;
    codec.setDDNSProvider(sampleProvider());
    ASSERT_TRUE(reads(codec, text));
    expectProvider(DDNSProvider(), codec.getDDNSProvider());
}

TEST(DDNSProviderXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    std::vector<DDNSProvider> list(1, sampleProvider());
    EXPECT_FALSE(DDNSProviderXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(DDNSProviderXml().parseDomainXmlNode(empty, list));
    EXPECT_EQ(1U, list.size());
}
