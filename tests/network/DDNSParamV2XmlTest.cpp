#include "network/DDNSParamV2Xml.h"

#include "tests/support/Documents.h"

namespace
{

DDNSParamV2 sample()
{
    DDNSParamV2 param;
    param.setDDNSEnableFlag(true);
    param.setDDNSProviderId(3);
    param.setDDNSAccounts("cam-17");
    param.setDDNSDomainName("gate.example.org");
    param.setDDNSPassword("not told");
    param.setDDNSNetworkCardName("eth1");
    return param;
}

void expectParam(const DDNSParamV2& expected, const DDNSParamV2& param)
{
    EXPECT_EQ(expected.getDDNSEnableFlag(), param.getDDNSEnableFlag());
    EXPECT_EQ(expected.getDDNSProviderId(), param.getDDNSProviderId());
    EXPECT_EQ(expected.getDDNSAccounts(), param.getDDNSAccounts());
    EXPECT_EQ(expected.getDDNSDomainName(), param.getDDNSDomainName());
    EXPECT_TRUE(expected.getDDNSPassword() == param.getDDNSPassword()); // without the texts
    EXPECT_EQ(expected.getDDNSNetworkCardName(), param.getDDNSNetworkCardName());
}

} // namespace

TEST(DDNSParamV2Xml, Writes)
{
    DDNSParamV2Xml codec;
    codec.setDDNSParamV2(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/DDNSParamV2Xml.document.xml"));
}

TEST(DDNSParamV2Xml, Reads)
{
    DDNSParamV2Xml codec;
    ASSERT_TRUE(reads(codec, golden("network/DDNSParamV2Xml.document.xml")));
    expectParam(sample(), codec.getDDNSParamV2());
}

TEST(DDNSParamV2Xml, ResetsWhatIsMissing)
{
    DDNSParamV2Xml codec;
    codec.setDDNSParamV2(sample());
    ASSERT_TRUE(reads(codec, "<DDNSParamV2 />"));
    expectParam(DDNSParamV2(), codec.getDDNSParamV2());
}

TEST(DDNSParamV2Xml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(DDNSParamV2Xml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/DDNSParamV2Xml.node.xml"));
}

TEST(DDNSParamV2Xml, ReadsNodes)
{
    DDNSParamV2 read;
    ASSERT_TRUE(DDNSParamV2Xml().parseXmlString(golden("network/DDNSParamV2Xml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(DDNSParamV2Xml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    DDNSParamV2 read = sample();
    ASSERT_TRUE(DDNSParamV2Xml().parseXmlString("<DDNSParamV2 />", read));
    expectParam(DDNSParamV2(), read);
    EXPECT_EQ("", output.text());
}

TEST(DDNSParamV2Xml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    DDNSParamV2 read = sample();
    EXPECT_FALSE(DDNSParamV2Xml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(DDNSParamV2Xml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}
