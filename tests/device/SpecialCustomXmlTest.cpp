#include "device/SpecialCustomXml.h"

#include "tests/support/Documents.h"

namespace
{

SpecialCustom sample()
{
    SpecialCustom custom;
    custom.setDispalyInfoShowFlag(true);
    custom.setStreamNameShowFlag(false);
    custom.setEncodeTypeShowFlag(true);
    custom.setResolutionNameShowFlag(true);
    custom.setFrameRateShowFlag(false);
    custom.setBitRateShowFlag(true);
    return custom;
}

void expectCustom(const SpecialCustom& expected, const SpecialCustom& custom)
{
    EXPECT_EQ(expected.getDispalyInfoShowFlag(), custom.getDispalyInfoShowFlag());
    EXPECT_EQ(expected.getStreamNameShowFlag(), custom.getStreamNameShowFlag());
    EXPECT_EQ(expected.getEncodeTypeShowFlag(), custom.getEncodeTypeShowFlag());
    EXPECT_EQ(expected.getResolutionNameShowFlag(), custom.getResolutionNameShowFlag());
    EXPECT_EQ(expected.getFrameRateShowFlag(), custom.getFrameRateShowFlag());
    EXPECT_EQ(expected.getBitRateShowFlag(), custom.getBitRateShowFlag());
}

} // namespace

TEST(SpecialCustomXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(SpecialCustomXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "device/SpecialCustomXml.node.xml"));
}

TEST(SpecialCustomXml, ReadsNodes)
{
    SpecialCustom read;
    ASSERT_TRUE(SpecialCustomXml().parseXmlString(golden("device/SpecialCustomXml.node.xml"), read));
    expectCustom(sample(), read);
}

TEST(SpecialCustomXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    SpecialCustom read = sample();
    ASSERT_TRUE(SpecialCustomXml().parseXmlString("<SpecialCustom />", read));
    expectCustom(SpecialCustom(), read);
    EXPECT_EQ("", output.text());
}

TEST(SpecialCustomXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    SpecialCustom read = sample();
    EXPECT_FALSE(SpecialCustomXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(SpecialCustomXml().parseDomainXmlNode(empty, read));
    expectCustom(sample(), read);
}

TEST(SpecialCustomXml, PassesOverTheOtherSpelling)
{
    SpecialCustom read;
    ASSERT_TRUE(SpecialCustomXml().parseXmlString("<SpecialCustom DisplayInfoShowFlag='true' />", read));
    EXPECT_FALSE(read.getDispalyInfoShowFlag());
}
