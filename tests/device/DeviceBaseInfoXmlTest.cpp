#include "device/DeviceBaseInfoXml.h"

#include "tests/device/DeviceBaseInfoSample.h"
#include "tests/support/Documents.h"

TEST(DeviceBaseInfoXml, Writes)
{
    DeviceBaseInfoXml codec;
    codec.setDeviceBaseInfo(sampleDevice());
    EXPECT_TRUE(matchesGolden(written(codec), "device/DeviceBaseInfoXml.document.xml"));
}

TEST(DeviceBaseInfoXml, Reads)
{
    DeviceBaseInfoXml codec;
    ASSERT_TRUE(reads(codec, golden("device/DeviceBaseInfoXml.document.xml")));
    expectDevice(sampleDevice(), codec.getDeviceBaseInfo());
}

TEST(DeviceBaseInfoXml, ResetsAttributesAndLeavesChildrenThatAreMissing)
{
    DeviceBaseInfoXml codec;
    codec.setDeviceBaseInfo(sampleDevice());
    ASSERT_TRUE(reads(codec, "<DeviceBaseInfo />"));
    DeviceBaseInfo expected;
    expected.setVersion(sampleDevice().getVersion());
    expected.setCameraDeviceList(sampleDevice().getCameraDeviceList());
    expectDevice(expected, codec.getDeviceBaseInfo());
}

TEST(DeviceBaseInfoXml, ReplacesTheVersionByTheOneThatIsThere)
{
    DeviceBaseInfoXml codec;
    codec.setDeviceBaseInfo(sampleDevice());
    ASSERT_TRUE(reads(codec, "<DeviceBaseInfo><Version SoftwareVer='S9' /></DeviceBaseInfo>"));
    EXPECT_EQ("", codec.getDeviceBaseInfo().getVersion().getHardwareVer());
    EXPECT_EQ("S9", codec.getDeviceBaseInfo().getVersion().getSoftwareVer());
}

TEST(DeviceBaseInfoXml, AddsCamerasBehindThoseThatAreThere)
{
    DeviceBaseInfoXml codec;
    codec.setDeviceBaseInfo(sampleDevice());
    ASSERT_TRUE(reads(codec, golden("device/DeviceBaseInfoXml.document.xml")));
    DeviceBaseInfo expected = sampleDevice();
    expected.getCameraDeviceList().push_back(sampleDevice().getCameraDeviceList()[0]);
    expected.getCameraDeviceList().push_back(sampleDevice().getCameraDeviceList()[1]);
    expectDevice(expected, codec.getDeviceBaseInfo());
}

TEST(DeviceBaseInfoXml, ReadsAListWithoutItems)
{
    for (const char* list :
         {"<CameraDevcieList />", "<CameraDevcieList>text<!--CameraDevice--></CameraDevcieList>",
          "<CameraDevcieList><Other /></CameraDevcieList>", "<CameraDeviceList><CameraDevice /></CameraDeviceList>"})
    {
        DeviceBaseInfoXml codec;
        ASSERT_TRUE(reads(codec, std::string("<DeviceBaseInfo>") + list + "</DeviceBaseInfo>")) << list;
        EXPECT_TRUE(codec.getDeviceBaseInfo().getCameraDeviceList().empty()) << list;
    }
}

TEST(DeviceBaseInfoXml, WalksOnFromTheFirstCameraOverElementsOfAnyName)
{
    DeviceBaseInfoXml codec;
    ASSERT_TRUE(reads(codec, "<DeviceBaseInfo><CameraDevcieList><Other CameraId='1' /><CameraDevice CameraId='2' />"
                             "<!-- -->text<Other CameraId='3' /></CameraDevcieList></DeviceBaseInfo>"));
    const std::vector<CameraDevice>& cameras = codec.getDeviceBaseInfo().getCameraDeviceList();
    ASSERT_EQ(2U, cameras.size());
    EXPECT_EQ(2, cameras[0].getCameraId());
    EXPECT_EQ(3, cameras[1].getCameraId());
}

TEST(DeviceBaseInfoXml, CarriesTheHighestStateAsASignedNumber)
{
    DeviceBaseInfoXml codec;
    codec.getDeviceBaseInfo().setState(0xFFFFFFFFFFFFFFFF);
    const std::string text = written(codec);
    EXPECT_NE(std::string::npos, text.find(" State=\"-1\""));

    DeviceBaseInfoXml reader;
    ASSERT_TRUE(reads(reader, text));
    EXPECT_EQ(0xFFFFFFFFFFFFFFFF, reader.getDeviceBaseInfo().getState());
}

TEST(DeviceBaseInfoXml, NarrowsThePort)
{
    DeviceBaseInfoXml codec;
    ASSERT_TRUE(reads(codec, "<DeviceBaseInfo DevicePort='65537' State='abc' />"));
    EXPECT_EQ(1, codec.getDeviceBaseInfo().getDevicePort());
    EXPECT_EQ(0U, codec.getDeviceBaseInfo().getState());
}
