#include "alarm/SendMailActionXml.h"

#include "tests/support/Documents.h"

namespace
{

SendMailAction sample()
{
    SendMailAction action;
    action.setSendMailFlag(true);
    action.setSendPictureFlag(true);
    action.setCameraId(2);
    return action;
}

void expectAction(const SendMailAction& expected, const SendMailAction& action)
{
    EXPECT_EQ(expected.getSendMailFlag(), action.getSendMailFlag());
    EXPECT_EQ(expected.getSendPictureFlag(), action.getSendPictureFlag());
    EXPECT_EQ(expected.getCameraId(), action.getCameraId());
}

} // namespace

TEST(SendMailActionXml, Writes)
{
    SendMailActionXml codec;
    codec.setSendMailAction(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "alarm/SendMailActionXml.document.xml"));
}

TEST(SendMailActionXml, Reads)
{
    SendMailActionXml codec;
    ASSERT_TRUE(reads(codec, golden("alarm/SendMailActionXml.document.xml")));
    expectAction(sample(), codec.getSendMailAction());
}

TEST(SendMailActionXml, ResetsAttributesAndSetsTheFlagOfAnElementWithoutThem)
{
    SendMailActionXml codec;
    codec.setSendMailAction(sample());
    ASSERT_TRUE(reads(codec, "<SendMailAction />"));
    SendMailAction expected;
    expected.setSendMailFlag(true);
    expectAction(expected, codec.getSendMailAction());
}

TEST(SendMailActionXml, WritesNothingWithoutTheFlag)
{
    SendMailActionXml codec;
    codec.setSendMailAction(sample());
    codec.getSendMailAction().setSendMailFlag(false);
    EXPECT_EQ("", written(codec));
    EXPECT_EQ(nullptr, codec.getXmlNode()->FirstChild());
}

TEST(SendMailActionXml, ReadsThePictureFlagAsANumber)
{
    for (const char* flag : {"1", "2", "-1", "1x"})
    {
        SendMailActionXml codec;
        ASSERT_TRUE(reads(codec, std::string("<SendMailAction SendPictureFlag='") + flag + "' />"));
        EXPECT_TRUE(codec.getSendMailAction().getSendPictureFlag()) << flag;
    }
    for (const char* flag : {"0", "true", ""})
    {
        SendMailActionXml codec;
        codec.setSendMailAction(sample());
        ASSERT_TRUE(reads(codec, std::string("<SendMailAction SendPictureFlag='") + flag + "' />"));
        EXPECT_FALSE(codec.getSendMailAction().getSendPictureFlag()) << flag;
    }
}
