#include "network/PPPoEParamXml.h"

#include "tests/support/Documents.h"

namespace
{

PPPoEParam sample()
{
    PPPoEParam param;
    param.setPPPoEEnableFlag(true);
    param.setPPPoEUserName("dial-17");
    param.setPPPoEPassword("not told");
    return param;
}

void expectParam(const PPPoEParam& expected, const PPPoEParam& param)
{
    EXPECT_EQ(expected.getPPPoEEnableFlag(), param.getPPPoEEnableFlag());
    EXPECT_EQ(expected.getPPPoEUserName(), param.getPPPoEUserName());
    EXPECT_TRUE(expected.getPPPoEPassword() == param.getPPPoEPassword()); // without the texts
}

} // namespace

TEST(PPPoEParamXml, Writes)
{
    PPPoEParamXml codec;
    codec.setPPPoEParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "network/PPPoEParamXml.document.xml"));
}

TEST(PPPoEParamXml, Reads)
{
    PPPoEParamXml codec;
    ASSERT_TRUE(reads(codec, golden("network/PPPoEParamXml.document.xml")));
    expectParam(sample(), codec.getPPPoEParam());
}

TEST(PPPoEParamXml, ResetsWhatIsMissing)
{
    PPPoEParamXml codec;
    codec.setPPPoEParam(sample());
    ASSERT_TRUE(reads(codec, "<PPPoEParam />"));
    expectParam(PPPoEParam(), codec.getPPPoEParam());
}

TEST(PPPoEParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(PPPoEParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "network/PPPoEParamXml.node.xml"));
}

TEST(PPPoEParamXml, ReadsNodes)
{
    PPPoEParam read;
    ASSERT_TRUE(PPPoEParamXml().parseXmlString(golden("network/PPPoEParamXml.node.xml"), read));
    expectParam(sample(), read);
}

TEST(PPPoEParamXml, ResetsWhatANodeLacks)
{
    CapturedOutput output;
    PPPoEParam read = sample();
    ASSERT_TRUE(PPPoEParamXml().parseXmlString("<PPPoEParam />", read));
    expectParam(PPPoEParam(), read);
    EXPECT_EQ("", output.text());
}

TEST(PPPoEParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    PPPoEParam read = sample();
    EXPECT_FALSE(PPPoEParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(PPPoEParamXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}
