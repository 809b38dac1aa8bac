#include "network/ProtocolSecurityParamXml.h"

#include "tests/support/Documents.h"

namespace
{

ProtocolSecurityParam sample()
{
    ProtocolSecurityParam param;
    param.setUserVerificationFlag(true);
    param.setSecurityVerificationType(2);
    return param;
}

void expectParam(const ProtocolSecurityParam& expected, const ProtocolSecurityParam& param)
{
    EXPECT_EQ(expected.getUserVerificationFlag(), param.getUserVerificationFlag());
    EXPECT_EQ(expected.getSecurityVerificationType(), param.getSecurityVerificationType());
}

} // namespace

TEST(ProtocolSecurityParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ProtocolSecurityParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/ProtocolSecurityParamXml.node.xml"));
}

TEST(ProtocolSecurityParamXml, ReadsNodes)
{
    ProtocolSecurityParam read;
    ASSERT_TRUE(ProtocolSecurityParamXml().parseXmlString(golden("network/ProtocolSecurityParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(ProtocolSecurityParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    ProtocolSecurityParam read = sample();
    ASSERT_TRUE(ProtocolSecurityParamXml().parseXmlString("<UserVerification />", read));
    expectParam(ProtocolSecurityParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(ProtocolSecurityParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ProtocolSecurityParam read = sample();
    EXPECT_FALSE(ProtocolSecurityParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ProtocolSecurityParamXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}
