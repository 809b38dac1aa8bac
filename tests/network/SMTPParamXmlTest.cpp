#include "network/SMTPParamXml.h"

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

TEST(SMTPParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(SMTPParamXml().createXmlString(sampleMail(), text));
    EXPECT_TRUE(matchesGolden(text, "network/SMTPParamXml.node.xml"));
}

TEST(SMTPParamXml, ReadsNodes)
{
    CapturedOutput output;
    SMTPParam read;
    ASSERT_TRUE(SMTPParamXml().parseXmlString(golden("network/SMTPParamXml.node.xml"), read));
    expectMail(sampleMail(), read);
    EXPECT_EQ("", output.text());
}

TEST(SMTPParamXml, TellsItsFlagsApart)
{
    SMTPParam param;
    param.setUseDefaultSMTPServerFlag(true);
    std::string text;
    ASSERT_TRUE(SMTPParamXml().createXmlString(param, text));
    SMTPParam read;
    ASSERT_TRUE(SMTPParamXml().parseXmlString(text, read));
    expectMail(param, read);
}

TEST(SMTPParamXml, PrintsALineForEachMissingPropertyAndResetsIt)
{
    CapturedOutput output;
    SMTPParam read = sampleMail();
    read.setUseDefaultSMTPServerFlag(true);
    ASSERT_TRUE(SMTPParamXml().parseXmlString("<SMTPParam />", read));
    expectMail(SMTPParam(), read);
    EXPECT_EQ(lines, output.text());
}

TEST(SMTPParamXml, ReplacesTheRecipientsByThoseOfTheirName)
{
    CapturedOutput output;
    SMTPParam read = sampleMail();
    ASSERT_TRUE(SMTPParamXml().parseXmlString(
        "<SMTPParam><RecipientEmailAddressList>text<Other /><!-- -->"
        "<RecipientEmailAddress RecipientEmailAddress='new' /><Other RecipientEmailAddress='no' />"
        "<RecipientEmailAddress RecipientEmailAddress='' /></RecipientEmailAddressList></SMTPParam>",
        read));
    SMTPParam expected;
    std::vector<std::string> recipients = {"new", ""};
    expected.setRecipientEmailAddressList(recipients);
    expectMail(expected, read);
}

TEST(SMTPParamXml, RefusesARecipientWithoutAnAddress)
{
    CapturedOutput output;
    SMTPParam read = sampleMail();
    ASSERT_FALSE(
        SMTPParamXml().parseXmlString("<SMTPParam TransportMode='9'><RecipientEmailAddressList>"
                                      "<RecipientEmailAddress RecipientEmailAddress='new' /><RecipientEmailAddress />"
                                      "</RecipientEmailAddressList></SMTPParam>",
                                      read));
    SMTPParam expected;
    std::vector<std::string> recipients = sampleMail().getRecipientEmailAddressList();
    expected.setRecipientEmailAddressList(recipients);
    expected.setTransportMode(9);
    expectMail(expected, read);
}

TEST(SMTPParamXml, WritesLists)
{
    std::string text;
    ASSERT_TRUE(SMTPParamXml().createXmlString({sampleMail(), SMTPParam()}, text));
    EXPECT_TRUE(matchesGolden(text, "network/SMTPParamXml.list.xml"));
}

TEST(SMTPParamXml, WritesAnEmptyList)
{
    std::string text;
    ASSERT_TRUE(SMTPParamXml().createXmlString(std::vector<SMTPParam>(), text));
    EXPECT_EQ("<SMTPParamList />\n", text);
}

TEST(SMTPParamXml, ReadsListsBehindWhatTheyHold)
{
    SMTPParam before;
    before.setSMTPServerAddr("before");
    std::vector<SMTPParam> list = {before};
    ASSERT_TRUE(SMTPParamXml().parseXmlString(golden("network/SMTPParamXml.list.xml"), list));
    ASSERT_EQ(3U, list.size());
    expectMail(before, list[0]);
    expectMail(sampleMail(), list[1]);
    expectMail(SMTPParam(), list[2]);
}

TEST(SMTPParamXml, ReadsItemsOfAnyNameUpToTheFirstThatFails)
{
    CapturedOutput output;
    std::vector<SMTPParam> list;
    EXPECT_FALSE(SMTPParamXml().parseXmlString(
        "<SMTPParamList>text<!-- --><Other TransportMode='9' />"
        "<SMTPParam><RecipientEmailAddressList><RecipientEmailAddress /></RecipientEmailAddressList></SMTPParam>"
        "<SMTPParam /></SMTPParamList>",
        list));
    ASSERT_EQ(1U, list.size());
    SMTPParam expected;
    expected.setTransportMode(9);
    expectMail(expected, list[0]);
}

TEST(SMTPParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    SMTPParam read = sampleMail();
    std::vector<SMTPParam> list(1, sampleMail());
    EXPECT_FALSE(SMTPParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(SMTPParamXml().createDomainXmlNode(list, empty));
    EXPECT_FALSE(SMTPParamXml().parseDomainXmlNode(empty, read));
    EXPECT_FALSE(SMTPParamXml().parseDomainXmlNode(empty, list));
    expectMail(sampleMail(), read);
    EXPECT_EQ(1U, list.size());
}

TEST(SMTPParamXml, LeavesTheRecordOfAFailedRead)
{
    SMTPParam read = sampleMail();
    std::vector<SMTPParam> list(1, sampleMail());
    EXPECT_FALSE(SMTPParamXml().parseXmlString("<SMTPParam TransportMode='9'", read));
    EXPECT_FALSE(SMTPParamXml().parseXmlString("<ZT_SMTPParam TransportMode='9' />", read));
    EXPECT_FALSE(SMTPParamXml().parseXmlString("<ZT_SMTPParamList><SMTPParam /></ZT_SMTPParamList>", list));
    expectMail(sampleMail(), read);
    EXPECT_EQ(1U, list.size());
}
