#include "network/CMSExternConfigParamXml.h"

#include "tests/network/CMSRegisterSample.h"
#include "tests/support/Documents.h"

TEST(CMSExternConfigParamXml, Writes)
{
    CMSExternConfigParamXml codec;
    codec.setCMSExternConfigParam(sampleConfig());
    EXPECT_TRUE(matchesGolden(written(codec), "network/CMSExternConfigParamXml.document.xml"));
}

TEST(CMSExternConfigParamXml, Reads)
{
    CMSExternConfigParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/CMSExternConfigParamXml.document.xml")));
    expectConfig(sampleConfig(), codec.getCMSExternConfigParam());
}

TEST(CMSExternConfigParamXml, LeavesWhatIsMissing)
{
    CMSExternConfigParamXml codec;
    codec.setCMSExternConfigParam(sampleConfig());
    ASSERT_TRUE(reads(codec, "<CMSExternConfigParam />"));
    expectConfig(sampleConfig(), codec.getCMSExternConfigParam());
}

TEST(CMSExternConfigParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(CMSExternConfigParamXml().createXmlString(sampleConfig(), text));
    EXPECT_TRUE(matchesGolden(text, "network/CMSExternConfigParamXml.node.xml"));
}

TEST(CMSExternConfigParamXml, ReadsNodes)
{
    CMSExternConfigParam read;
    ASSERT_TRUE(CMSExternConfigParamXml().parseXmlString(golden("network/CMSExternConfigParamXml.node.xml"), read));
    expectConfig(sampleConfig(), read);
}

TEST(CMSExternConfigParamXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    CMSExternConfigParam read = sampleConfig();
    ASSERT_TRUE(CMSExternConfigParamXml().parseXmlString("<CMSExternConfigParam />", read));
    expectConfig(CMSExternConfigParam(), read);
    EXPECT_EQ("CMSExternConfigParamXml::parseDomainXmlNode get ExternConfig1 failed \n"
              "CMSExternConfigParamXml::parseDomainXmlNode get ExternConfig2 failed \n"
              "CMSExternConfigParamXml::parseDomainXmlNode get ExternConfig3 failed \n",
              output.text());
}

TEST(CMSExternConfigParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    CMSExternConfigParam read = sampleConfig();
    EXPECT_FALSE(CMSExternConfigParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(CMSExternConfigParamXml().parseDomainXmlNode(empty, read));
    expectConfig(sampleConfig(), read);
}
