#include "ptz/ScanRegistersParamXml.h"

#include "tests/ptz/ExternInterfaceSample.h"
#include "tests/support/Documents.h"

namespace
{

ScanRegistersParam sample()
{
    ScanRegistersParam param;
    param.setEnableFlag(true);
    param.setOSDTopX(11);
    param.setOSDTopY(12);
    param.setDisplayNum(15);
    param.setOSDCameraList({3, 5});
    param.setExternInterface(sampleInterface());
    return param;
}

ScanRegistersParam sampleOfKind(int kind)
{
    ScanRegistersParam param = sample();
    param.getExternInterface().setInterfaceType(kind);
    return param;
}

void expectParam(const ScanRegistersParam& expected, const ScanRegistersParam& param)
{
    EXPECT_EQ(expected.getEnableFlag(), param.getEnableFlag());
    EXPECT_EQ(expected.getOSDTopX(), param.getOSDTopX());
    EXPECT_EQ(expected.getOSDTopY(), param.getOSDTopY());
    EXPECT_EQ(expected.getDisplayNum(), param.getDisplayNum());
    EXPECT_EQ(expected.getOSDCameraList(), param.getOSDCameraList());
    expectInterface(expected.getExternInterface(), param.getExternInterface());
}

bool readsNode(const std::string& text, ScanRegistersParam& param)
{
    SafePointer<DomainXmlNode> node;
    EXPECT_TRUE(DomainXmlNode::parse(text, node));
    return ScanRegistersParamXml().parseDomainXmlNode(node, param);
}

const char* const lineForAChild = "ScanRegistersParamXml::parseDomainXmlNode node = NODE_CAMERA_ID_LIST failed \n";

} // namespace

TEST(ScanRegistersParamXml, Writes)
{
    std::string text;
    ASSERT_TRUE(ScanRegistersParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "ptz/ScanRegistersParamXml.document.xml"));
}

TEST(ScanRegistersParamXml, Reads)
{
    ScanRegistersParam read;
    ASSERT_TRUE(
        ScanRegistersParamXml().parseScanRegistersParamXml(golden("ptz/ScanRegistersParamXml.document.xml"), read));
    expectParam(sample(), read);
}

TEST(ScanRegistersParamXml, WritesNodes)
{
    SafePointer<DomainXmlNode> node(new DomainXmlNode("ScanRegistersParam"));
    ASSERT_TRUE(ScanRegistersParamXml().createDomainXmlNode(sampleOfKind(3), node));
    std::string text;
    ASSERT_TRUE(DomainXmlNode::toString(node, text));
    EXPECT_TRUE(matchesGolden(text, "ptz/ScanRegistersParamXml.node.xml"));
}

TEST(ScanRegistersParamXml, ReadsNodes)
{
    ScanRegistersParam read;
    ASSERT_TRUE(readsNode(golden("ptz/ScanRegistersParamXml.node.xml"), read));
    expectParam(sampleOfKind(3), read);
}

TEST(ScanRegistersParamXml, CarriesThePortOfOtherKindsInNodesOnly)
{
    std::string text;
    ASSERT_TRUE(ScanRegistersParamXml().createXmlString(sampleOfKind(3), text));
    EXPECT_NE(std::string::npos, text.find("\n\t<ExternInterface InterfaceType=\"3\" />\n"));

    ScanRegistersParam read = sample();
    ASSERT_TRUE(ScanRegistersParamXml().parseScanRegistersParamXml(golden("ptz/ScanRegistersParamXml.node.xml"), read));
    ExternInterface expected;
    expected.setInterfaceType(3);
    expectInterface(expected, read.getExternInterface());
}

TEST(ScanRegistersParamXml, AddsCamerasOfAnyNameBehindThoseThatAreThere)
{
    const char* const text = "<ScanRegistersParam><CameraIdList>text<!-- --><Other CameraId='7' /><CameraId />"
                             "</CameraIdList><ExternInterface><RS485Device /></ExternInterface></ScanRegistersParam>";
    CapturedOutput output;
    ScanRegistersParam read = sample();
    ASSERT_TRUE(ScanRegistersParamXml().parseScanRegistersParamXml(text, read));
    EXPECT_EQ((std::vector<int>{3, 5, 7, 0}), read.getOSDCameraList());

    ScanRegistersParam readFromNode = sample();
    ASSERT_TRUE(readsNode(text, readFromNode));
    EXPECT_EQ((std::vector<int>{3, 5, 7, 0}), readFromNode.getOSDCameraList());
    EXPECT_EQ("", output.text());
}

TEST(ScanRegistersParamXml, LeavesWhatIsMissingAndPrintsTheSameLineForEitherChild)
{
    CapturedOutput output;
    ScanRegistersParam read = sample();
    ASSERT_TRUE(ScanRegistersParamXml().parseScanRegistersParamXml("<ScanRegistersParam />", read));
    expectParam(sample(), read);
    EXPECT_EQ(std::string(lineForAChild) + lineForAChild, output.text());

    CapturedOutput outputOfNode;
    ASSERT_TRUE(readsNode("<ScanRegistersParam><!--CameraIdList--><!--ExternInterface--></ScanRegistersParam>", read));
    expectParam(sample(), read);
    EXPECT_EQ(std::string(lineForAChild) + lineForAChild, outputOfNode.text());
}

TEST(ScanRegistersParamXml, PrintsOneLineForOneMissingChild)
{
    for (const char* text : {"<ScanRegistersParam><CameraIdList /></ScanRegistersParam>",
                             "<ScanRegistersParam><ExternInterface /></ScanRegistersParam>"})
    {
        CapturedOutput output;
        ScanRegistersParam read;
        ASSERT_TRUE(ScanRegistersParamXml().parseScanRegistersParamXml(text, read));
        EXPECT_EQ(lineForAChild, output.text());
    }
}

TEST(ScanRegistersParamXml, ReplacesThePortByTheOneThatIsThere)
{
    ScanRegistersParam read = sample();
    ASSERT_TRUE(ScanRegistersParamXml().parseScanRegistersParamXml(
        "<ScanRegistersParam><CameraIdList /><ExternInterface InterfaceType='1' /></ScanRegistersParam>", read));
    ExternInterface expected;
    expected.setInterfaceType(1);
    expectInterface(expected, read.getExternInterface());
}

TEST(ScanRegistersParamXml, PrintsTheLineOfThePortInNodesOnly)
{
    const char* const text =
        "<ScanRegistersParam><CameraIdList /><ExternInterface InterfaceType='1' /></ScanRegistersParam>";
    CapturedOutput output;
    ScanRegistersParam read;
    ASSERT_TRUE(readsNode(text, read));
    EXPECT_EQ("ExternInterfaceXml::parseDomainXmlNode node = NODE_RS485_DEVICE failed \n", output.text());

    CapturedOutput outputOfText;
    ASSERT_TRUE(ScanRegistersParamXml().parseScanRegistersParamXml(text, read));
    EXPECT_EQ("", outputOfText.text());
}

TEST(ScanRegistersParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    ScanRegistersParam read = sample();
    EXPECT_FALSE(ScanRegistersParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(ScanRegistersParamXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}
