#include "device/DeviceSummaryInfoXml.h"

#include "tests/support/Documents.h"

namespace
{

DeviceSummaryInfo sample()
{
    DeviceSummaryInfo info;
    info.setDeviceName("Gate recorder");
    info.setDeviceId("D-17");
    info.setManufacturerId("M7");
    info.setManufacturerName("Example works");
    info.setProductModel("R-16");
    info.setProductDescription("Recorder with 16 channels");
    info.setHardwareModel("HW3");
    info.setHardwareDescription("Third board");
    info.setMACAddress("02:00:00:00:00:11");
    info.setBarCode("4012345678901");
    info.setSN("SN-0042");
    info.setProductionTime("2015-03-02");
    info.setDeviceType(2);
    info.setCameraNum(16);
    info.setAlarmInNum(8);
    info.setAlarmOutNum(5);
    info.setRS485Num(3);
    info.setRS232Num(1);
    info.setNetworkCardNum(4);
    info.setVideoSystem(6);
    info.setRS485ComIdList({11, 12});
    info.getVersion().setHardwareVer("H1");
    info.getVersion().setSoftwareVer("S2");
    return info;
}

void expectInfo(const DeviceSummaryInfo& expected, const DeviceSummaryInfo& info)
{
    EXPECT_EQ(expected.getDeviceName(), info.getDeviceName());
    EXPECT_EQ(expected.getDeviceId(), info.getDeviceId());
    EXPECT_EQ(expected.getManufacturerId(), info.getManufacturerId());
    EXPECT_EQ(expected.getManufacturerName(), info.getManufacturerName());
    EXPECT_EQ(expected.getProductModel(), info.getProductModel());
    EXPECT_EQ(expected.getProductDescription(), info.getProductDescription());
    EXPECT_EQ(expected.getHardwareModel(), info.getHardwareModel());
    EXPECT_EQ(expected.getHardwareDescription(), info.getHardwareDescription());
    EXPECT_EQ(expected.getMACAddress(), info.getMACAddress());
    EXPECT_EQ(expected.getBarCode(), info.getBarCode());
    EXPECT_EQ(expected.getSN(), info.getSN());
    EXPECT_EQ(expected.getProductionTime(), info.getProductionTime());
    EXPECT_EQ(expected.getDeviceType(), info.getDeviceType());
    EXPECT_EQ(expected.getCameraNum(), info.getCameraNum());
    EXPECT_EQ(expected.getAlarmInNum(), info.getAlarmInNum());
    EXPECT_EQ(expected.getAlarmOutNum(), info.getAlarmOutNum());
    EXPECT_EQ(expected.getRS485Num(), info.getRS485Num());
    EXPECT_EQ(expected.getRS232Num(), info.getRS232Num());
    EXPECT_EQ(expected.getNetworkCardNum(), info.getNetworkCardNum());
    EXPECT_EQ(expected.getVideoSystem(), info.getVideoSystem());
    EXPECT_EQ(expected.getRS485ComIdList(), info.getRS485ComIdList());
    EXPECT_EQ(expected.getVersion().getHardwareVer(), info.getVersion().getHardwareVer());
    EXPECT_EQ(expected.getVersion().getSoftwareVer(), info.getVersion().getSoftwareVer());
}

} // namespace

TEST(DeviceSummaryInfoXml, Writes)
{
    DeviceSummaryInfoXml codec;
    codec.setDeviceSummaryInfo(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/DeviceSummaryInfoXml.document.xml"));
}

TEST(DeviceSummaryInfoXml, Reads)
{
    DeviceSummaryInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("device/DeviceSummaryInfoXml.document.xml")));
    expectInfo(sample(), codec.getDeviceSummaryInfo());
}

TEST(DeviceSummaryInfoXml, LeavesWhatIsMissing)
{
    DeviceSummaryInfoXml codec;
    codec.setDeviceSummaryInfo(sample());
    ASSERT_TRUE(reads(codec, "<DeviceSummaryInfo />"));
    expectInfo(sample(), codec.getDeviceSummaryInfo());
}

TEST(DeviceSummaryInfoXml, AddsPortsOfAnyNameBehindThoseThatAreThere)
{
    DeviceSummaryInfoXml codec;
    codec.getDeviceSummaryInfo().setRS485ComIdList({7});
    ASSERT_TRUE(reads(codec,
                      "<DeviceSummaryInfo><RS485ComIdList><Other ComId='1' /><RS485ComId ComId='2' /><!-- -->text"
                      "<Other ComId='3' /><RS485ComId /></RS485ComIdList></DeviceSummaryInfo>"));
    EXPECT_EQ((std::vector<int>{7, 2, 3, 0}), codec.getDeviceSummaryInfo().getRS485ComIdList());
}

TEST(DeviceSummaryInfoXml, ReadsAListWithoutPorts)
{
    for (const char* list : {"<RS485ComIdList />", "<RS485ComIdList><!--RS485ComId--><Other /></RS485ComIdList>"})
    {
        DeviceSummaryInfoXml codec;
        ASSERT_TRUE(reads(codec, std::string("<DeviceSummaryInfo>") + list + "</DeviceSummaryInfo>")) << list;
        EXPECT_TRUE(codec.getDeviceSummaryInfo().getRS485ComIdList().empty()) << list;
    }
}

TEST(DeviceSummaryInfoXml, ReplacesTheVersionByTheOneThatIsThere)
{
    DeviceSummaryInfoXml codec;
    codec.setDeviceSummaryInfo(sample());
    ASSERT_TRUE(reads(codec, "<DeviceSummaryInfo><Version SoftwareVer='S9' /></DeviceSummaryInfo>"));
    EXPECT_EQ("", codec.getDeviceSummaryInfo().getVersion().getHardwareVer());
    EXPECT_EQ("S9", codec.getDeviceSummaryInfo().getVersion().getSoftwareVer());
}
