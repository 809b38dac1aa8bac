#include "network/ZT_SMTPParamXml.h"

#include "tests/network/SMTPParamSample.h"
#include "tests/support/Documents.h"

namespace
{

// One for each attribute, in their order.
constexpr char lines[] = "SMTPParamXml::parseDomainXmlNode get SMTPEnableFlag failed \n"
                         "SMTPParamXml::parseDomainXmlNode get UseDefaultSMTPServerFlag failed \n"
                         "SMTPParamXml::parseDomainXmlNode get SMTPServerAddr failed \n"
                         "SMTPParamXml::parseDomainXmlNode get SMTPServerPort failed \n"
                         "SMTPParamXml::parseDomainXmlNode get SMTPUserName failed \n"
                         "SMTPParamXml::parseDomainXmlNode get SMTPPassword failed \n"
                         "SMTPParamXml::parseDomainXmlNode get SenderEmailAddress failed \n"
                         "SMTPParamXml::parseDomainXmlNode get MailLanguage failed \n"
                         "SMTPParamXml::parseDomainXmlNode get AttachmentImageQuality failed \n"
                         "SMTPParamXml::parseDomainXmlNode get TransportMode failed \n";

} // namespace

TEST(ZT_SMTPParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ZT_SMTPParamXml().createXmlString(sampleMail(), text));
    EXPECT_TRUE(matchesGolden(text, "network/ZT_SMTPParamXml.node.xml"));
}

TEST(ZT_SMTPParamXml, ReadsNodes)
{
    CapturedOutput output;
    SMTPParam read;
    ASSERT_TRUE(ZT_SMTPParamXml().parseXmlString(golden("network/ZT_SMTPParamXml.node.xml"), read));
    expectMail(sampleMail(), read);
    EXPECT_EQ("", output.text());
}

TEST(ZT_SMTPParamXml, TellsItsFlagsApart)
{
    SMTPParam param;
    param.setUseDefaultSMTPServerFlag(true);
    std::string text;
    ASSERT_TRUE(ZT_SMTPParamXml().createXmlString(param, text));
    SMTPParam read;
    ASSERT_TRUE(ZT_SMTPParamXml().parseXmlString(text, read));
    expectMail(param, read);
}

TEST(ZT_SMTPParamXml, PrintsALineForEachMissingPropertyAndResetsIt)
{
    CapturedOutput output;
    SMTPParam read = sampleMail();
    read.setUseDefaultSMTPServerFlag(true);
    ASSERT_TRUE(ZT_SMTPParamXml().parseXmlString("<ZT_SMTPParam />", read));
    expectMail(SMTPParam(), read);
    EXPECT_EQ(lines, output.text());
}

TEST(ZT_SMTPParamXml, ReplacesTheRecipientsByThoseOfTheirName)
{
    CapturedOutput output;
    SMTPParam read = sampleMail();
    ASSERT_TRUE(ZT_SMTPParamXml().parseXmlString(
        "<ZT_SMTPParam><ZT_RecipientEmailAddressList>text<Other /><!-- -->"
        "<ZT_RecipientEmailAddress ZT_RecipientEmailAddress='new' /><Other ZT_RecipientEmailAddress='no' />"
        "<ZT_RecipientEmailAddress ZT_RecipientEmailAddress='' /></ZT_RecipientEmailAddressList></ZT_SMTPParam>",
        read));
    SMTPParam expected;
    std::vector<std::string> recipients = {"new", ""};
    expected.setRecipientEmailAddressList(recipients);
    expectMail(expected, read);
}

TEST(ZT_SMTPParamXml, RefusesARecipientWithoutAnAddress)
{
    CapturedOutput output;
    SMTPParam read = sampleMail();
    ASSERT_FALSE(ZT_SMTPParamXml().parseXmlString(
        "<ZT_SMTPParam ZT_TransportMode='9'><ZT_RecipientEmailAddressList>"
        "<ZT_RecipientEmailAddress ZT_RecipientEmailAddress='new' /><ZT_RecipientEmailAddress />"
        "</ZT_RecipientEmailAddressList></ZT_SMTPParam>",
        read));
    SMTPParam expected;
    std::vector<std::string> recipients = sampleMail().getRecipientEmailAddressList();
    expected.setRecipientEmailAddressList(recipients);
    expected.setTransportMode(9);
    expectMail(expected, read);
}

TEST(ZT_SMTPParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(ZT_SMTPParamXml().createXmlString({sampleMail(), SMTPParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/ZT_SMTPParamXml.list.xml"));
}

TEST(ZT_SMTPParamXml, WritesAnEmptyList)
{
    std::string text;
    ASSERT_TRUE(ZT_SMTPParamXml().createXmlString(std::vector<SMTPParam>(), text));
    EXPECT_EQ("<ZT_SMTPParamList />\n", text);
}

TEST(ZT_SMTPParamXml, ReadsListsBehindWhatTheyHold)
{
    SMTPParam before;
    before.setSMTPServerAddr("before");
    std::vector<SMTPParam> list = {before};
    ASSERT_TRUE(ZT_SMTPParamXml().parseXmlString(golden("network/ZT_SMTPParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectMail(before, list[0]);
    expectMail(sampleMail(), list[1]);
    expectMail(SMTPParam(), list[2]);
}

TEST(ZT_SMTPParamXml, ReadsItemsOfAnyNameUpToTheFirstThatFails)
{
    CapturedOutput output;
    std::vector<SMTPParam> list;
    EXPECT_FALSE(ZT_SMTPParamXml().parseXmlString("<ZT_SMTPParamList>text<!-- --><Other ZT_TransportMode='9' />"
                                                  "<ZT_SMTPParam><ZT_RecipientEmailAddressList>"
                                                  "<ZT_RecipientEmailAddress />"
                                                  "</ZT_RecipientEmailAddressList></ZT_SMTPParam>"
                                                  "<ZT_SMTPParam /></ZT_SMTPParamList>",
                                                  list));
    ASSERT_EQ(1U, list.size());
    SMTPParam expected;
    expected.setTransportMode(9);
    expectMail(expected, list[0]);
}

TEST(ZT_SMTPParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    SMTPParam read = sampleMail();
    std::vector<SMTPParam> list(1, sampleMail());
    EXPECT_FALSE(ZT_SMTPParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ZT_SMTPParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(ZT_SMTPParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(ZT_SMTPParamXml().parseDomainXmlNode(empty, list));
    expectMail(sampleMail(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(ZT_SMTPParamXml, LeavesTheRecordOfAFailedRead)
{
    SMTPParam read = sampleMail();
    std::vector<SMTPParam> list(1, sampleMail());
    EXPECT_FALSE(ZT_SMTPParamXml().parseXmlString("<ZT_SMTPParam ZT_TransportMode='9'", read));
    EXPECT_FALSE(ZT_SMTPParamXml().parseXmlString("<SMTPParam ZT_TransportMode='9' />", read));
    EXPECT_FALSE(ZT_SMTPParamXml().parseXmlString("<SMTPParamList><ZT_SMTPParam /></SMTPParamList>", list));
    expectMail(sampleMail(), read);
    EXPECT_EQ(1U, list.size());
}
