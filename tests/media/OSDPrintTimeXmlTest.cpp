#include "media/OSDPrintTimeXml.h"

#include "tests/media/OverlaySample.h"
#include "tests/support/Documents.h"

TEST(OSDPrintTimeXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(OSDPrintTimeXml().createXmlString(samplePrintTime(), text));
    EXPECT_TRUE(matchesGolden(text, "media/OSDPrintTimeXml.node.xml"));
}

TEST(OSDPrintTimeXml, ReadsNodes)
{
    OSDPrintTime read;
    ASSERT_TRUE(OSDPrintTimeXml().parseXmlString(golden("media/OSDPrintTimeXml.node.xml"), read));
    expectPrintTime(samplePrintTime(), read);
}

TEST(OSDPrintTimeXml, PrintsALineForEachMissingProperty)
{
    CapturedOutput output;
    OSDPrintTime read = samplePrintTime();
    ASSERT_TRUE(OSDPrintTimeXml().parseXmlString("<OSDPrintTime />", read));
    expectPrintTime(OSDPrintTime(), read);
    EXPECT_EQ("OSDPrintTimeXml::parseDomainXmlNode ATTR_TIME  failed \n\n"
              "OSDPrintTimeXml::parseDomainXmlNode ATTR_OSD_TYPE  failed \n\n",
              output.text());
}

TEST(OSDPrintTimeXml, RefusesANodeWithoutAnElement)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode(static_cast<TiXmlElement*>(nullptr)));
    EXPECT_FALSE(OSDPrintTimeXml().createDomainXmlNode(samplePrintTime(), node));
}

TEST(OSDPrintTimeXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    OSDPrintTime read = samplePrintTime();
    EXPECT_FALSE(OSDPrintTimeXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(OSDPrintTimeXml().parseDomainXmlNode(empty, read));
    expectPrintTime(samplePrintTime(), read);
}
