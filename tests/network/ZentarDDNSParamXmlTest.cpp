#include "network/ZentarDDNSParamXml.h"

#include "tests/support/Documents.h"

namespace
{

ZentarDDNSParam sample()
{
    ZentarDDNSParam param;
    param.setDDNSEnableFlag(true);
    param.setDDNSDomainName("gate.example.org");
    param.setDDNSNetWorkCardName("eth1");
    return param;
}

void expectParam(const ZentarDDNSParam& expected, const ZentarDDNSParam& param)
{
    EXPECT_EQ(expected.getDDNSEnableFlag(), param.getDDNSEnableFlag());
    EXPECT_EQ(expected.getDDNSDomainName(), param.getDDNSDomainName());
    EXPECT_EQ(expected.getDDNSNetWorkCardName(), param.getDDNSNetWorkCardName());
}

} // namespace

TEST(ZentarDDNSParamXml, Writes)
{
    ZentarDDNSParamXml codec;
    codec.setZentarDDNSParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/ZentarDDNSParamXml.document.xml"));
}

TEST(ZentarDDNSParamXml, Reads)
{
    ZentarDDNSParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/ZentarDDNSParamXml.document.xml")));
    expectParam(sample(), codec.getZentarDDNSParam());
}

TEST(ZentarDDNSParamXml, ResetsWhatIsMissing)
{
    ZentarDDNSParamXml codec;
    codec.setZentarDDNSParam(sample());
    ASSERT_TRUE(reads(codec, "<ZentarDDNSParam />"));
    expectParam(ZentarDDNSParam(), codec.getZentarDDNSParam());
}

TEST(ZentarDDNSParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ZentarDDNSParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/ZentarDDNSParamXml.node.xml"));
}

TEST(ZentarDDNSParamXml, ReadsNodes)
{
    ZentarDDNSParam read;
    ASSERT_TRUE(ZentarDDNSParamXml().parseXmlString(golden("network/ZentarDDNSParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(ZentarDDNSParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    ZentarDDNSParam read = sample();
    ASSERT_TRUE(ZentarDDNSParamXml().parseXmlString("<ZentarDDNSParam />", read));
    expectParam(ZentarDDNSParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(ZentarDDNSParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ZentarDDNSParam read = sample();
    EXPECT_FALSE(ZentarDDNSParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ZentarDDNSParamXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}

TEST(ZentarDDNSParamXml, TakesAMissingFlagForFalse)
{
    const std::string text = "<ZentarDDNSParam ZentarDDNSDomainName='x' ZentarDDNSNetWordCardName='y' />";
    ZentarDDNSParamXml codec;
    codec.setZentarDDNSParam(sample());
    ASSERT_TRUE(reads(codec, text));
    EXPECT_FALSE(codec.getZentarDDNSParam().getDDNSEnableFlag());
    EXPECT_EQ("x", codec.getZentarDDNSParam().getDDNSDomainName());

    ZentarDDNSParam read = sample();
    ASSERT_TRUE(ZentarDDNSParamXml().parseXmlString(text, read));
    EXPECT_FALSE(read.getDDNSEnableFlag());
    EXPECT_EQ("y", read.getDDNSNetWorkCardName());
}
