#include "network/DDNSParamXml.h"

#include "tests/support/Documents.h"

namespace
{

DDNSParam sample()
{
    DDNSParam param;
    param.setDDNSEnableFlag(true);
    param.setDDNSProviderId(3);
    param.setDDNSAccounts("cam-17");
    param.setDDNSDomainName("gate.example.org");
    param.setDDNSPassword("not told");
    return param;
}

void expectParam(const DDNSParam& expected, const DDNSParam& param)
{
    EXPECT_EQ(expected.getDDNSEnableFlag(), param.getDDNSEnableFlag());
    EXPECT_EQ(expected.getDDNSProviderId(), param.getDDNSProviderId());
    EXPECT_EQ(expected.getDDNSAccounts(), param.getDDNSAccounts());
    EXPECT_EQ(expected.getDDNSDomainName(), param.getDDNSDomainName());
    EXPECT_TRUE(expected.getDDNSPassword() == param.getDDNSPassword()); // without the texts
}

} // namespace

TEST(DDNSParamXml, Writes)
{
    DDNSParamXml codec;
    codec.setDDNSParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/DDNSParamXml.document.xml"));
}

TEST(DDNSParamXml, Reads)
{
    DDNSParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/DDNSParamXml.document.xml")));
    expectParam(sample(), codec.getDDNSParam());
}

TEST(DDNSParamXml, ResetsWhatIsMissing)
{
    DDNSParamXml codec;
    codec.setDDNSParam(sample());
    ASSERT_TRUE(reads(codec, "<DDNSParam />"));
    expectParam(DDNSParam(), codec.getDDNSParam());
}

TEST(DDNSParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(DDNSParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/DDNSParamXml.node.xml"));
}

TEST(DDNSParamXml, ReadsNodes)
{
    DDNSParam read;
    ASSERT_TRUE(DDNSParamXml().parseXmlString(golden("network/DDNSParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(DDNSParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    DDNSParam read = sample();
    ASSERT_TRUE(DDNSParamXml().parseXmlString("<DDNSParam />", read));
    expectParam(DDNSParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(DDNSParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    DDNSParam read = sample();
    EXPECT_FALSE(DDNSParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(DDNSParamXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}
