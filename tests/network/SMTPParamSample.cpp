#include "tests/network/SMTPParamSample.h"

#include <gtest/gtest.h>

SMTPParam sampleMail()
{
    SMTPParam param;
    param.setSMTPEnableFlag(true);
    param.setUseDefaultSMTPServerFlag(false);
    param.setSMTPServerAddr("mail.example.org");
    param.setSMTPServerPort(587);
    param.setSMTPUserName("recorder");
    param.setSMTPPassword("not told");
    param.setSenderEmailAddress("recorder@example.org");
    std::vector<std::string> recipients = {"guard@example.org", "office@example.org"};
    param.setRecipientEmailAddressList(recipients);
    param.setMailLauguage(2);
    param.setAttachmentImageQuality(75);
    param.setTransportMode(3);
    return param;
}

void expectMail(const SMTPParam& expected, const SMTPParam& param)
{
    EXPECT_EQ(expected.getSMTPEnableFlag(), param.getSMTPEnableFlag());
    EXPECT_EQ(expected.getUseDefaultSMTPServerFlag(), param.getUseDefaultSMTPServerFlag());
    EXPECT_EQ(expected.getSMTPServerAddr(), param.getSMTPServerAddr());
    EXPECT_EQ(expected.getSMTPServerPort(), param.getSMTPServerPort());
    EXPECT_EQ(expected.getSMTPUserName(), param.getSMTPUserName());
    EXPECT_TRUE(expected.getSMTPPassword() == param.getSMTPPassword()); // without the texts
    EXPECT_EQ(expected.getSenderEmailAddress(), param.getSenderEmailAddress());
    EXPECT_EQ(expected.getRecipientEmailAddressList(), param.getRecipientEmailAddressList());
    EXPECT_EQ(expected.getMailLanguage(), param.getMailLanguage());
    EXPECT_EQ(expected.getAttachmentImageQuality(), param.getAttachmentImageQuality());
    EXPECT_EQ(expected.getTransportMode(), param.getTransportMode());
}
