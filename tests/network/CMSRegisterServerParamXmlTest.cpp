#include "network/CMSRegisterServerParamXml.h"

#include "tests/network/CMSRegisterSample.h"
#include "tests/support/Documents.h"

TEST(CMSRegisterServerParamXml, Writes)
{
    CMSRegisterServerParamXml codec;
    codec.setCMSRegisterServerParam(sampleServers());
    EXPECT_TRUE(matchesGolden(written(codec), "network/CMSRegisterServerParamXml.document.xml"));
}

TEST(CMSRegisterServerParamXml, Reads)
{
    CMSRegisterServerParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/CMSRegisterServerParamXml.document.xml")));
    expectServers(sampleServers(), codec.getCMSRegisterServerParam());
}

TEST(CMSRegisterServerParamXml, LeavesWhatIsMissing)
{
    CMSRegisterServerParamXml codec;
    codec.setCMSRegisterServerParam(sampleServers());
    ASSERT_TRUE(reads(codec, "<CMSRegisterServerParam />"));
    expectServers(sampleServers(), codec.getCMSRegisterServerParam());
}

TEST(CMSRegisterServerParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(CMSRegisterServerParamXml().createXmlString(sampleServers(), text));
    EXPECT_TRUE(matchesGolden(text, "network/CMSRegisterServerParamXml.node.xml"));
}

TEST(CMSRegisterServerParamXml, ReadsNodes)
{
    CMSRegisterServerParam read;
    ASSERT_TRUE(CMSRegisterServerParamXml().parseXmlString(golden("network/CMSRegisterServerParamXml.node.xml"), read));
    expectServers(sampleServers(), read);
}

TEST(CMSRegisterServerParamXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    CMSRegisterServerParam read = sampleServers();
    ASSERT_TRUE(CMSRegisterServerParamXml().parseXmlString("<CMSRegisterServerParam />", read));
    expectServers(CMSRegisterServerParam(), read);
    EXPECT_EQ("CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvIP1 failed \n"
              "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvPort1 failed \n"
              "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvIP2 failed \n"
              "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvPort2 failed \n"
              "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvIP3 failed \n"
              "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvPort3 failed \n"
              "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvIP4 failed \n"
              "CMSRegisterServerParamXml::parseDomainXmlNode get RegisterSrvPort4 failed \n",
              output.text());
}

TEST(CMSRegisterServerParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    CMSRegisterServerParam read = sampleServers();
    EXPECT_FALSE(CMSRegisterServerParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(CMSRegisterServerParamXml().parseDomainXmlNode(empty, read));
    expectServers(sampleServers(), read);
}

TEST(CMSRegisterServerParamXml, DoesNotKnowThePortsInSmallLetters)
{
    CapturedOutput output;
    CMSRegisterServerParamXml codec;
    ASSERT_TRUE(reads(codec, "<CMSRegisterServerParam RegisterSrvPort1='9' />"));
    EXPECT_EQ(0, codec.getCMSRegisterServerParam().getRegisterSrvPort1());

    CMSRegisterServerParam read = sampleServers();
    ASSERT_TRUE(CMSRegisterServerParamXml().parseXmlString("<CMSRegisterServerParam RegisterSrvPort1='9' />", read));
    EXPECT_EQ(0, read.getRegisterSrvPort1());
}

TEST(CMSRegisterServerParamXml, CarriesNoFifthServer)
{
    CMSRegisterServerParamXml codec;
    ASSERT_TRUE(reads(codec, "<CMSRegisterServerParam RegisterSrvIP5='192.0.2.5' RegisterSrvPORT5='6005' />"));
    expectServers(CMSRegisterServerParam(), codec.getCMSRegisterServerParam());
}
