#include "security/SystemUserParamXml.h"

#include "tests/support/Documents.h"

namespace
{

SystemUserParam sample()
{
    SystemUser user;
    user.setUserName("operator");
    user.setPassword("not told");
    SystemUserParam param;
    param.setSystemUser(user);
    param.setNewPassword("not told either");
    return param;
}

void expectParam(const SystemUserParam& expected, const SystemUserParam& param)
{
    EXPECT_EQ(expected.getSystemUser().getUserName(), param.getSystemUser().getUserName());
    EXPECT_TRUE(expected.getSystemUser().getPassword() == param.getSystemUser().getPassword()); // without the texts
    EXPECT_TRUE(expected.getNewPassword() == param.getNewPassword());                           // without the texts
}

} // namespace

TEST(SystemUserParamXml, Writes)
{
    std::string text;
    ASSERT_TRUE(SystemUserParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "security/SystemUserParamXml.node.xml"));
}

TEST(SystemUserParamXml, Reads)
{
    SystemUserParam read;
    ASSERT_TRUE(SystemUserParamXml().parseXmlString(golden("security/SystemUserParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(SystemUserParamXml, ReadsEmptyValues)
{
    SystemUserParam read = sample();
    ASSERT_TRUE(
        SystemUserParamXml().parseXmlString("<SystemUserParam UserName='' Password='' NewPassword='' />", read));
    expectParam(SystemUserParam(), read);
}

TEST(SystemUserParamXml, RefusesATextThatLacksOneValue)
{
    CapturedOutput output;
    SystemUserParam read = sample();
    EXPECT_FALSE(SystemUserParamXml().parseXmlString("<SystemUserParam UserName='x' Password='x' />", read));
    EXPECT_FALSE(SystemUserParamXml().parseXmlString("<SystemUserParam UserName='x' NewPassword='x' />", read));
    EXPECT_FALSE(SystemUserParamXml().parseXmlString("<SystemUserParam Password='x' NewPassword='x' />", read));
    expectParam(sample(), read);
    EXPECT_EQ("", output.text());
}
