#include "network/DDNSProviderListXml.h"

#include "tests/network/DDNSProviderSample.h"
#include "tests/support/Documents.h"

TEST(DDNSProviderListXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(DDNSProviderListXml().createXmlString(sampleProvider(), text));
    EXPECT_TRUE(matchesGolden(text, "network/DDNSProviderListXml.node.xml"));
}

TEST(DDNSProviderListXml, ReadsNodes)
{
    DDNSProvider read;
    ASSERT_TRUE(DDNSProviderListXml().parseXmlString(golden("network/DDNSProviderListXml.node.xml"), read));
    expectProvider(sampleProvider(), read);
}

TEST(DDNSProviderListXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    DDNSProvider read = sampleProvider();
    ASSERT_TRUE(DDNSProviderListXml().parseXmlString("<DDNSProvider DDNSProviderId='4' DDNSProviderName='x' />", read));
    expectProvider(DDNSProvider(), read);
    EXPECT_EQ("", output.text());
}

TEST(DDNSProviderListXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(DDNSProviderListXml().createXmlString({sampleProvider(), DDNSProvider()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/DDNSProviderListXml.list.xml"));
    ASSERT_TRUE(DDNSProviderListXml().createXmlString(std::vector<DDNSProvider>(), text));
    EXPECT_EQ("<DDNSProviderList />\n", text);
}

TEST(DDNSProviderListXml, ReadsListsBehindWhatTheyHold)
{
    std::vector<DDNSProvider> list(1, sampleProvider());
    ASSERT_TRUE(DDNSProviderListXml().parseXmlString(golden("network/DDNSProviderListXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectProvider(sampleProvider(), list[0]);
    expectProvider(sampleProvider(), list[1]);
    expectProvider(DDNSProvider(), list[2]);
}

TEST(DDNSProviderListXml, ReadsItemsOfAnyName)
{
    std::vector<DDNSProvider> list;
    ASSERT_TRUE(DDNSProviderListXml().parseXmlString(
        "<DDNSProviderList>text<!-- --><Other ProviderId='9' /></DDNSProviderList>", list));
    ASSERT_EQ(1U, list.size());
    EXPECT_EQ(9, list[0].getProviderId());
}

TEST(DDNSProviderListXml, RefusesTheRootOfTheOtherKind)
{
    DDNSProvider read;
    std::vector<DDNSProvider> list;
    EXPECT_FALSE(DDNSProviderListXml().parseXmlString(golden("network/DDNSProviderListXml.list.xml"), read));
    EXPECT_FALSE(DDNSProviderListXml().parseXmlString(golden("network/DDNSProviderListXml.node.xml"), list));
    EXPECT_TRUE(list.empty());
}
