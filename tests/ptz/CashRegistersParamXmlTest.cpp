#include "ptz/CashRegistersParamXml.h"

#include "tests/ptz/ExternInterfaceSample.h"
#include "tests/support/Documents.h"

namespace
{

CashRegistersParam sample()
{
    CashRegistersParam param;
    param.setEnableFlag(true);
    param.setOSDTopX(11);
    param.setOSDTopY(12);
    param.setOSDLanguage(13);
    param.setModel(14);
    param.setOSDCameraList({3, 5});
    param.setExternInterface(sampleInterface());
    return param;
}

void expectParam(const CashRegistersParam& expected, const CashRegistersParam& param)
{
    EXPECT_EQ(expected.getEnableFlag(), param.getEnableFlag());
    EXPECT_EQ(expected.getOSDTopX(), param.getOSDTopX());
    EXPECT_EQ(expected.getOSDTopY(), param.getOSDTopY());
    EXPECT_EQ(expected.getOSDLanguage(), param.getOSDLanguage());
    EXPECT_EQ(expected.getModel(), param.getModel());
    EXPECT_EQ(expected.getOSDCameraList(), param.getOSDCameraList());
    expectInterface(expected.getExternInterface(), param.getExternInterface());
}

} // namespace

TEST(CashRegistersParamXml, Writes)
{
    CashRegistersParamXml codec;
    codec.setCashRegistersParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "ptz/CashRegistersParamXml.document.xml"));
}

TEST(CashRegistersParamXml, Reads)
{
    CashRegistersParamXml codec;
    ASSERT_TRUE(reads(codec, golden("ptz/CashRegistersParamXml.document.xml")));
    expectParam(sample(), codec.getCashRegistersParam());
}

TEST(CashRegistersParamXml, LeavesWhatIsMissing)
{
    CashRegistersParamXml codec;
    codec.setCashRegistersParam(sample());
    ASSERT_TRUE(reads(codec, "<CashRegistersParam />"));
    expectParam(sample(), codec.getCashRegistersParam());
}

TEST(CashRegistersParamXml, WritesNodes)
{
    std::string text;
    ASSERT_TRUE(CashRegistersParamXml().createXmlString(sample(), text));
    EXPECT_TRUE(matchesGolden(text, "ptz/CashRegistersParamXml.node.xml"));
}

TEST(CashRegistersParamXml, ReadsNodes)
{
    CashRegistersParam read;
    ASSERT_TRUE(CashRegistersParamXml().parseXmlString(golden("ptz/CashRegistersParamXml.node.xml"), read));
    CashRegistersParam expected = sample();
    expected.setModel(0); // which nodes don't carry
    expectParam(expected, read);
}

TEST(CashRegistersParamXml, RefusesAnEmptyPointer)
{
    SafePointer<DomainXmlNode> empty;
    CashRegistersParam read = sample();
    EXPECT_FALSE(CashRegistersParamXml().createDomainXmlNode(read, empty));
    EXPECT_FALSE(CashRegistersParamXml().parseDomainXmlNode(empty, read));
    expectParam(sample(), read);
}

TEST(CashRegistersParamXml, AddsTheCamerasThatHaveANumberBehindThoseThatAreThere)
{
    CashRegistersParamXml codec;
    codec.setCashRegistersParam(sample());
    ASSERT_TRUE(reads(codec, "<CashRegistersParam><CameraList>text<Other CameraId='7' /><CameraId /><!-- -->"
                             "<CameraId CameraId='' /><CameraId CameraId='12a' /></CameraList></CashRegistersParam>"));
    EXPECT_EQ((std::vector<int>{3, 5, 7, 0, 12}), codec.getCashRegistersParam().getOSDCameraList());
}

TEST(CashRegistersParamXml, TakesTheDigitsThatANumberBeginsWith)
{
    CashRegistersParamXml codec;
    codec.setCashRegistersParam(sample());
    ASSERT_TRUE(reads(codec, "<CashRegistersParam OSDTopX='12a' OSDTopY='' Model='none' EnableFlag='false' />"));
    EXPECT_EQ(12, codec.getCashRegistersParam().getOSDTopX());
    EXPECT_EQ(0, codec.getCashRegistersParam().getOSDTopY());
    EXPECT_EQ(0, codec.getCashRegistersParam().getModel());
    EXPECT_FALSE(codec.getCashRegistersParam().getEnableFlag());
}

TEST(CashRegistersParamXml, WritesThePortOfOtherKindsInNodesOnly)
{
    CashRegistersParamXml codec;
    codec.setCashRegistersParam(sample());
    codec.getCashRegistersParam().getExternInterface().setInterfaceType(2);
    EXPECT_EQ(std::string::npos, written(codec).find("RS485Device"));
    std::string text;
    ASSERT_TRUE(codec.createXmlString(codec.getCashRegistersParam(), text));
    EXPECT_NE(std::string::npos, text.find("RS485Device"));
}

TEST(CashRegistersParamXml, ReplacesTheCamerasOfANode)
{
    CashRegistersParam read = sample();
    ASSERT_TRUE(CashRegistersParamXml().parseXmlString(
        "<CashRegistersParam Model='9'><CameraList>text<!-- --><Other CameraId='7' /><CameraId /></CameraList>"
        "<ExternInterface><RS485Device /></ExternInterface></CashRegistersParam>",
        read));
    EXPECT_EQ((std::vector<int>{7, 0}), read.getOSDCameraList());
    EXPECT_EQ(14, read.getModel());
}

TEST(CashRegistersParamXml, PrintsALineForAMissingChildAndResetsAllButTheModel)
{
    CapturedOutput output;
    CashRegistersParam read = sample();
    ASSERT_TRUE(CashRegistersParamXml().parseXmlString("<CashRegistersParam />", read));
    CashRegistersParam expected;
    expected.setModel(14);
    expectParam(expected, read);
    EXPECT_EQ("CashRegistersParamXml::parseDomainXmlNode node = NODE_CAMERA_LIST failed \n"
              "CashRegistersParamXml::parseDomainXmlNode node = NODE_EXTERN_INTERFACE failed \n",
              output.text());
}
