#include "security/SecurityParamXml.h"

#include "tests/support/Documents.h"

namespace
{

SecurityParam sample()
{
    SecurityParam param;
    param.setLoginMode(3);
    param.setWebMode(4);
    param.setCommunicationEncryptFlag(true);
    param.setAccountsLockTime(30);
    param.setAccountsUnlockTime(20);
    param.setMaxSeriesLoginErrorCount(5);
    param.setAccountsLockEnableFlag(false);
    param.setPasswordVerifyMode(6);
    return param;
}

void expectParam(const SecurityParam& expected, const SecurityParam& param)
{
    EXPECT_EQ(expected.getLoginMode(), param.getLoginMode());
    EXPECT_EQ(expected.getWebMode(), param.getWebMode());
    EXPECT_EQ(expected.getCommunicationEncryptFlag(), param.getCommunicationEncryptFlag());
    EXPECT_EQ(expected.getAccountsLockTime(), param.getAccountsLockTime());
    EXPECT_EQ(expected.getAccountsUnlockTime(), param.getAccountsUnlockTime());
    EXPECT_EQ(expected.getMaxSeriesLoginErrorCount(), param.getMaxSeriesLoginErrorCount());
    EXPECT_EQ(expected.getAccountsLockEnableFlag(), param.getAccountsLockEnableFlag());
    EXPECT_EQ(expected.getPasswordVerifyMode(), param.getPasswordVerifyMode());
}

} // namespace

TEST(SecurityParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(SecurityParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "security/SecurityParamXml.node.xml"));
}

TEST(SecurityParamXml, ReadsNodes)
{
    SecurityParam read;
    ASSERT_TRUE(SecurityParamXml().parseXmlString(golden("security/SecurityParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(SecurityParamXml, PrintsALineForEachValueThatANodeLacks)
{
    CapturedOutput output;
    SecurityParam read = sample();
    ASSERT_TRUE(SecurityParamXml().parseXmlString("<SecurityParam />", read));
    SecurityParam defaults;
    defaults.setLoginMode(2);
    defaults.setWebMode(1);
    expectParam(defaults, read);
    EXPECT_EQ("SecurityParamXml::parseDomainXmlNode get LoginMode failed \n"
              "SecurityParamXml::parseDomainXmlNode get WebMode failed \n"
              "SecurityParamXml::parseDomainXmlNode get CommunicationEncryptFlag failed \n"
              "SecurityParamXml::parseDomainXmlNode get AccountsLockTime failed \n"
              "SecurityParamXml::parseDomainXmlNode get AccountsUnlockTime failed \n"
              "SecurityParamXml::parseDomainXmlNode get MaxSeriesLoginErrorCount failed \n"
              "SecurityParamXml::parseDomainXmlNode get AccountsLockEnableFlag failed \n"
              "SecurityParamXml::parseDomainXmlNode get PasswordVerifyMode failed \n",
              output.text());
}

TEST(SecurityParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    SecurityParam read = sample();
    EXPECT_FALSE(SecurityParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(SecurityParamXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}

TEST(SecurityParamXml, ReadsEachFlagByItself)
{
    CapturedOutput output;
    SecurityParam read = sample();
    ASSERT_TRUE(SecurityParamXml().parseXmlString(
        "<SecurityParam CommunicationEncryptFlag='false' AccountsLockEnableFlag='true' />", read));
    EXPECT_FALSE(read.getCommunicationEncryptFlag());
    EXPECT_TRUE(read.getAccountsLockEnableFlag());
}
