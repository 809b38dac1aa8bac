#include "core/IDomainXml.h"

#include "commands/VideoStreamCloseXml.h"
#include "core/ColorParamXml.h"
#include "core/LineCrossXml.h"
#include "core/PolygonAreaXml.h"
#include "core/VersionXml.h"
#include "tests/support/Documents.h"

#include <memory>
#include <type_traits>

static_assert(std::has_virtual_destructor<IDomainXml>::value, "codecs die through their base");
static_assert(std::is_convertible<VideoStreamCloseXml*, IDomainXml*>::value, "a public base");
static_assert(std::is_convertible<ColorParamXml*, IDomainXml*>::value, "a public base");
static_assert(!std::is_base_of<IDomainXml, LineCrossXml>::value, "no base");
static_assert(std::has_virtual_destructor<LineCrossXml>::value, "but a virtual destructor");
static_assert(!std::is_polymorphic<PolygonAreaXml>::value, "nothing at all");

namespace
{

constexpr char oneText[] = "<Version HardwareVer=\"1\" SoftwareVer=\"2\" />\n";
constexpr char otherText[] = "<Version HardwareVer=\"3\" SoftwareVer=\"4\" />\n";

} // namespace

// The anatomy of the document form, shown on one codec.

TEST(DocumentForm, DiesThroughItsBase)
{
    const std::unique_ptr<IDomainXml> codec(new VersionXml);
    EXPECT_NE(nullptr, codec);
}

TEST(DocumentForm, AppendsARootWithEveryWrite)
{
    VersionXml codec;
    codec.getVersion().setHardwareVer("1");
    codec.getVersion().setSoftwareVer("2");
    EXPECT_TRUE(codec.createXmlString());
    EXPECT_EQ(oneText, codec.getXmlString());
    EXPECT_TRUE(codec.createXmlString());
    EXPECT_EQ(std::string(oneText) + oneText, codec.getXmlString());
}

TEST(DocumentForm, PrintsAParsedTreeBeforeTheNewRoot)
{
    VersionXml codec;
    ASSERT_TRUE(reads(codec, otherText));
    codec.getVersion().setHardwareVer("1");
    codec.getVersion().setSoftwareVer("2");
    EXPECT_EQ(std::string(otherText) + oneText, written(codec));
}

TEST(DocumentForm, FindsTheFirstTextsRootAgain)
{
    VersionXml codec;
    ASSERT_TRUE(reads(codec, oneText));
    ASSERT_TRUE(reads(codec, otherText));
    EXPECT_EQ("1", codec.getVersion().getHardwareVer());
}

TEST(DocumentForm, RefusesWhatIsNoDocumentOfIts)
{
    for (const char* text : {"", " ", "<Version", "<Version>", "<Other />", "<!--Version-->", "<![CDATA[Version]]>",
                             "text<Version />", "<Version a='1' a='2' />", "</Version>"})
    {
        VersionXml codec;
        codec.getVersion().setHardwareVer("kept");
        EXPECT_FALSE(reads(codec, text)) << text;
        EXPECT_EQ("kept", codec.getVersion().getHardwareVer()) << text;
    }
}

TEST(DocumentForm, FindsItsRootBehindOthers)
{
    VersionXml codec;
    EXPECT_TRUE(reads(codec, std::string("<?xml version='1.0'?><!-- --><Other />") + oneText));
    EXPECT_EQ("1", codec.getVersion().getHardwareVer());
}

TEST(DocumentForm, KeepsTheErrorOfItsDocument)
{
    VersionXml codec;
    EXPECT_FALSE(reads(codec, "<Version"));
    EXPECT_TRUE(codec.getXmlNode()->ToDocument()->Error());
}

TEST(DocumentForm, ReadsAnElementOfAnotherDocument)
{
    TiXmlDocument document;
    document.Parse(oneText);
    VersionXml codec;
    codec.setXmlNode(document.FirstChild());
    EXPECT_TRUE(codec.parseXmlNode());
    EXPECT_EQ("2", codec.getVersion().getSoftwareVer());
}

TEST(DocumentForm, ReadsNothingWithoutAnElement)
{
    VersionXml codec;
    EXPECT_FALSE(codec.parseXmlNode());
    TiXmlComment comment("Version");
    codec.setXmlNode(&comment);
    EXPECT_FALSE(codec.parseXmlNode());
    codec.setXmlNode(nullptr);
    EXPECT_FALSE(codec.parseXmlNode());
}

TEST(DocumentForm, GivesItsDocumentAndNeverTheNodeThatWasSet)
{
    VersionXml codec;
    TiXmlElement element("Version");
    codec.setXmlNode(&element);
    codec.createXmlNode();
    ASSERT_NE(nullptr, codec.getXmlNode()->ToDocument());
    EXPECT_STREQ("Version", codec.getXmlNode()->FirstChild()->Value());
}

TEST(DocumentForm, KeepsItsTextWhenGivenItself)
{
    VersionXml codec;
    codec.setXmlString("text");
    codec.setXmlString(codec.getXmlString());
    EXPECT_EQ("text", codec.getXmlString());
}

TEST(DocumentForm, ReadsDigitsAndTakesGarbageForPresent)
{
    VideoStreamCloseXml codec;
    codec.setCameraId(7);
    codec.setConsumerId(7);
    ASSERT_TRUE(reads(codec, "<VideoStreamCloseCommand CameraId='12abc' ConsumerId='abc' />"));
    EXPECT_EQ(12, codec.getCameraId());
    EXPECT_EQ(0, codec.getConsumerId());
}
