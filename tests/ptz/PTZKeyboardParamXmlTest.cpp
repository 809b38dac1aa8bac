#include "ptz/PTZKeyboardParamXml.h"

#include "tests/ptz/ExternInterfaceSample.h"
#include "tests/support/Documents.h"

namespace
{

PTZKeyboardParam sample()
{
    PTZKeyboardParam keyboard;
    keyboard.setEnableFlag(true);
    keyboard.setExternInterface(sampleInterface());
    return keyboard;
}

void expectKeyboard(const PTZKeyboardParam& expected, const PTZKeyboardParam& keyboard)
{
    EXPECT_EQ(expected.getEnableFlag(), keyboard.getEnableFlag());
    expectInterface(expected.getExternInterface(), keyboard.getExternInterface());
}

} // namespace

TEST(PTZKeyboardParamXml, Writes)
{
    PTZKeyboardParamXml codec;
    codec.setPTZKeyboardParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "ptz/PTZKeyboardParamXml.document.xml"));
}

TEST(PTZKeyboardParamXml, Reads)
{
    PTZKeyboardParamXml codec;
    ASSERT_TRUE(reads(codec, golden("ptz/PTZKeyboardParamXml.document.xml")));
    expectKeyboard(sample(), codec.getPTZKeyboardParam());
}

TEST(PTZKeyboardParamXml, LeavesWhatIsMissing)
{
    PTZKeyboardParamXml codec;
    codec.setPTZKeyboardParam(sample());
    ASSERT_TRUE(reads(codec, "<PTZKeyboardParam />"));
    expectKeyboard(sample(), codec.getPTZKeyboardParam());
}

TEST(PTZKeyboardParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(PTZKeyboardParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "ptz/PTZKeyboardParamXml.node.xml"));
}

TEST(PTZKeyboardParamXml, ReadsNodes)
{
    PTZKeyboardParam read;
    ASSERT_TRUE(PTZKeyboardParamXml().parseXmlString(golden("ptz/PTZKeyboardParamXml.node.xml"), read));
    expectKeyboard(sample(), read);
}

TEST(PTZKeyboardParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    PTZKeyboardParam read = sample();
    EXPECT_FALSE(PTZKeyboardParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(PTZKeyboardParamXml().parseDomainXmlNode(empty, read));
    expectKeyboard(sample(), read);
}

TEST(PTZKeyboardParamXml, ReplacesThePortByTheOneThatIsThere)
{
    PTZKeyboardParamXml codec;
    codec.setPTZKeyboardParam(sample());
    ASSERT_TRUE(
        reads(codec, "<PTZKeyboardParam EnableFlag='false'><ExternInterface InterfaceType='2' /></PTZKeyboardParam>"));
    PTZKeyboardParam expected;
    expected.getExternInterface().setInterfaceType(2);
    expectKeyboard(expected, codec.getPTZKeyboardParam());
}

TEST(PTZKeyboardParamXml, PrintsALineForAMissingPort)
{
    CapturedOutput output;
    PTZKeyboardParam read = sample();
    ASSERT_TRUE(PTZKeyboardParamXml().parseXmlString("<PTZKeyboardParam />", read));
    expectKeyboard(PTZKeyboardParam(), read);
    EXPECT_EQ("PTZKeyboardParamXml::parseDomainXmlNode node = NODE_EXTERN_INTERFACE failed \n", output.text());
}
