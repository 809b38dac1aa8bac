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

TEST(SpecialCustomXml, CarriesEachFlagOnItsOwn)
{
    const struct
    {
        const char* name;
        void (SpecialCustom::*set)(bool);
    } flags[] = {
        {"DispalyInfoShowFlag", &SpecialCustom::setDispalyInfoShowFlag},
        {"StreamNameShowFlag", &SpecialCustom::setStreamNameShowFlag},
        {"EncodeTypeShowFlag", &SpecialCustom::setEncodeTypeShowFlag},
        {"ResolutionNameShowFlag", &SpecialCustom::setResolutionNameShowFlag},
        {"FrameRateShowFlag", &SpecialCustom::setFrameRateShowFlag},
        {"BitRateShowFlag", &SpecialCustom::setBitRateShowFlag},
    };
    for (const auto& flag : flags)
    {
        SCOPED_TRACE(flag.name);
        SpecialCustom custom;
        (custom.*flag.set)(true);
        std::string text;
        ASSERT_TRUE(SpecialCustomXml().createXmlString(custom, text));
        EXPECT_NE(std::string::npos, text.find(std::string(flag.name) + "=\"true\""));
        EXPECT_EQ(text.find("true"), text.rfind("true"));
        SpecialCustom read;
        ASSERT_TRUE(SpecialCustomXml().parseXmlString(text, read));
        expectCustom(custom, read);
    }
}

TEST(SpecialCustomXml, PassesOverTheOtherSpelling)
{
    SpecialCustom read;
    ASSERT_TRUE(SpecialCustomXml().parseXmlString("<SpecialCustom DisplayInfoShowFlag='true' />", read));
    EXPECT_FALSE(read.getDispalyInfoShowFlag());
}
