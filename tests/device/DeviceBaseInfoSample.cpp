#include "tests/device/DeviceBaseInfoSample.h"

#include <gtest/gtest.h>

DeviceBaseInfo sampleDevice()
{
    DeviceBaseInfo info;
    info.setDeviceId("D-17");
    info.setDeviceName("Gate recorder");
    info.setDeviceType(2);
    info.setDeviceIP("192.0.2.17");
    info.setDevicePort(37777);
    info.setIPProtoVer(4);
    info.setUserID("operator");
    info.setPassword("not told");
    info.setManufacturerId("M7");
    info.setManufacturerName("Example works");
    info.setProductModel("R-16");
    info.setProductDescription("Recorder with 16 channels");
    info.setMACAddress("02:00:00:00:00:11");
    info.setBarCode("4012345678901");
    info.setProductionTime("2015-03-02");
    info.setHardwareModel("HW3");
    info.setHardwareDescription("Third board");
    info.setCameraNum(16);
    info.setAlarmInNum(8);
    info.setAlarmOutNum(5);
    info.setRS485Num(3);
    info.setState(0x123456789ABCDEF0);

    info.getVersion().setHardwareVer("H1");
    info.getVersion().setSoftwareVer("S2");

    CameraDevice camera;
    camera.setCameraId(1);
    camera.setCameraName("North");
    camera.setCameraModel("M1");
    camera.setVideoSystem(2);
    info.getCameraDeviceList().push_back(camera);
    camera.setCameraId(3);
    camera.setCameraName("South");
    camera.setCameraModel("M4");
    camera.setVideoSystem(5);
    info.getCameraDeviceList().push_back(camera);
    return info;
}

void expectDevice(const DeviceBaseInfo& expected, const DeviceBaseInfo& info)
{
    EXPECT_EQ(expected.getDeviceId(), info.getDeviceId());
    EXPECT_EQ(expected.getDeviceName(), info.getDeviceName());
    EXPECT_EQ(expected.getDeviceType(), info.getDeviceType());
    EXPECT_EQ(expected.getDeviceIP(), info.getDeviceIP());
    EXPECT_EQ(expected.getDevicePort(), info.getDevicePort());
    EXPECT_EQ(expected.getIPProtoVer(), info.getIPProtoVer());
    EXPECT_EQ(expected.getUserID(), info.getUserID());
    EXPECT_EQ(expected.getPassword(), info.getPassword());
    EXPECT_EQ(expected.getManufacturerId(), info.getManufacturerId());
    EXPECT_EQ(expected.getManufacturerName(), info.getManufacturerName());
    EXPECT_EQ(expected.getProductModel(), info.getProductModel());
    EXPECT_EQ(expected.getProductDescription(), info.getProductDescription());
    EXPECT_EQ(expected.getMACAddress(), info.getMACAddress());
    EXPECT_EQ(expected.getBarCode(), info.getBarCode());
    EXPECT_EQ(expected.getProductionTime(), info.getProductionTime());
    EXPECT_EQ(expected.getHardwareModel(), info.getHardwareModel());
    EXPECT_EQ(expected.getHardwareDescription(), info.getHardwareDescription());
    EXPECT_EQ(expected.getCameraNum(), info.getCameraNum());
    EXPECT_EQ(expected.getAlarmInNum(), info.getAlarmInNum());
    EXPECT_EQ(expected.getAlarmOutNum(), info.getAlarmOutNum());
    EXPECT_EQ(expected.getRS485Num(), info.getRS485Num());
    EXPECT_EQ(expected.getState(), info.getState());
    EXPECT_EQ(expected.getVersion().getHardwareVer(), info.getVersion().getHardwareVer());
    EXPECT_EQ(expected.getVersion().getSoftwareVer(), info.getVersion().getSoftwareVer());

    ASSERT_EQ(expected.getCameraDeviceList().size(), info.getCameraDeviceList().size());
    for (std::size_t number = 0; number < info.getCameraDeviceList().size(); ++number)
    {
        const CameraDevice& wanted = expected.getCameraDeviceList()[number];
        const CameraDevice& camera = info.getCameraDeviceList()[number];
        EXPECT_EQ(wanted.getCameraId(), camera.getCameraId());
        EXPECT_EQ(wanted.getCameraName(), camera.getCameraName());
        EXPECT_EQ(wanted.getCameraModel(), camera.getCameraModel());
        EXPECT_EQ(wanted.getVideoSystem(), camera.getVideoSystem());
    }
}
