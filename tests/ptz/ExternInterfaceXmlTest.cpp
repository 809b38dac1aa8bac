#include "ptz/ExternInterfaceXml.h"

#include "tests/ptz/ExternInterfaceSample.h"
#include "tests/support/Documents.h"

TEST(ExternInterfaceXml, Writes)
{
    ExternInterfaceXml codec;
    codec.setExternInterface(sampleInterface());
    EXPECT_TRUE(matchesGolden(written(codec), "ptz/ExternInterfaceXml.document.xml"));
}

TEST(ExternInterfaceXml, Reads)
{
    ExternInterfaceXml codec;
    ASSERT_TRUE(reads(codec, golden("ptz/ExternInterfaceXml.document.xml")));
    expectInterface(sampleInterface(), codec.getExternInterface());
}

TEST(ExternInterfaceXml, LeavesWhatIsMissing)
{
    ExternInterfaceXml codec;
    codec.setExternInterface(sampleInterface());
    ASSERT_TRUE(reads(codec, "<ExternInterface />"));
    expectInterface(sampleInterface(), codec.getExternInterface());
}

TEST(ExternInterfaceXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(ExternInterfaceXml().createXmlString(sampleInterface(), text));
    EXPECT_TRUE(matchesGolden(text, "ptz/ExternInterfaceXml.node.xml"));
}

TEST(ExternInterfaceXml, ReadsNodes)
{
    ExternInterface read;
    ASSERT_TRUE(ExternInterfaceXml().parseXmlString(golden("ptz/ExternInterfaceXml.node.xml"), read));
    expectInterface(sampleInterface(), read);
}

TEST(ExternInterfaceXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ExternInterface read = sampleInterface();
    EXPECT_FALSE(ExternInterfaceXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ExternInterfaceXml().parseDomainXmlNode(empty, read));
    expectInterface(sampleInterface(), read);
}

TEST(ExternInterfaceXml, CarriesThePortOfOtherKindsInNodesOnly)
{
    ExternInterface interface = sampleInterface();
    interface.setInterfaceType(2);
    ExternInterfaceXml codec;
    codec.setExternInterface(interface);
    EXPECT_EQ("<ExternInterface InterfaceType=\"2\" />\n", written(codec));

    std::string text;
    ASSERT_TRUE(ExternInterfaceXml().createXmlString(interface, text));
    EXPECT_EQ("<ExternInterface InterfaceType=\"2\">\n\t" + golden("ptz/RS485DeviceXml.node.xml") +
                  "</ExternInterface>\n",
              text);
    ExternInterface read;
    ASSERT_TRUE(ExternInterfaceXml().parseXmlString(text, read));
    expectInterface(interface, read);
}

TEST(ExternInterfaceXml, PassesOverThePortOfAnotherKind)
{
    ExternInterfaceXml codec;
    codec.setExternInterface(sampleInterface());
    ASSERT_TRUE(reads(codec, "<ExternInterface InterfaceType='3'><RS485Device ComId='9' /></ExternInterface>"));
    ExternInterface expected = sampleInterface();
    expected.setInterfaceType(3);
    expectInterface(expected, codec.getExternInterface());
}

TEST(ExternInterfaceXml, ReadsThePortWhereTheRecordKnowsTheKind)
{
    ExternInterfaceXml codec;
    ASSERT_TRUE(reads(codec, "<ExternInterface><RS485Device ComId='9' /></ExternInterface>"));
    EXPECT_EQ(0, codec.getExternInterface().getRS485Device().getComId());

    ExternInterfaceXml known;
    known.setExternInterface(sampleInterface());
    ASSERT_TRUE(reads(known, "<ExternInterface><RS485Device ComId='9' /></ExternInterface>"));
    ExternInterface expected;
    expected.setInterfaceType(1);
    expected.getRS485Device().setComId(9);
    expectInterface(expected, known.getExternInterface());
}

TEST(ExternInterfaceXml, PrintsALineForAMissingPort)
{
    CapturedOutput output;
    ExternInterface read = sampleInterface();
    ASSERT_TRUE(ExternInterfaceXml().parseXmlString("<ExternInterface><!--RS485Device--></ExternInterface>", read));
    expectInterface(ExternInterface(), read);
    EXPECT_EQ("ExternInterfaceXml::parseDomainXmlNode node = NODE_RS485_DEVICE failed \n", output.text());
}
