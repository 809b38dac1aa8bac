#include "device/DeviceParamXml.h"

#include "tests/support/Documents.h"

#include <cstdio>
#include <vector>

namespace
{

std::string bytes(const unsigned char* bytes, int length)
{
    std::string text;
    for (int place = 0; place < length; ++place)
    {
        char digits[4];
        std::snprintf(digits, sizeof digits, "%02x ", bytes[place]);
        text += digits;
    }
    return text;
}

DeviceParam sample()
{
    DeviceParam param;
    param.setDeviceId("D-9");
    param.setDeviceType(2);
    param.setCameraId(3);
    param.setComId(4);
    param.setAlarmInId(5);
    param.setAlarmOutId(6);
    param.setIPProtoVer(7);
    param.setImageFormatId(8);
    const unsigned char first[] = {0, 7, 255};
    const unsigned char second[] = {16};
    const unsigned char third[] = {1, 2};
    param.setReserveBuf1(first, 3);
    param.setReserveBuf2(second, 1);
    param.setReserveBuf3(third, 2);
    param.setReserveValue1(21);
    param.setReserveValue2(22);
    param.setReserveValue3(23);
    return param;
}

void expectParam(const DeviceParam& expected, const DeviceParam& param)
{
    EXPECT_EQ(expected.getDeviceId(), param.getDeviceId());
    EXPECT_EQ(expected.getDeviceType(), param.getDeviceType());
    EXPECT_EQ(expected.getCameraId(), param.getCameraId());
    EXPECT_EQ(expected.getComId(), param.getComId());
    EXPECT_EQ(expected.getAlarmInId(), param.getAlarmInId());
    EXPECT_EQ(expected.getAlarmOutId(), param.getAlarmOutId());
    EXPECT_EQ(expected.getIPProtoVer(), param.getIPProtoVer());
    EXPECT_EQ(expected.getImageFormatId(), param.getImageFormatId());
    EXPECT_EQ(bytes(expected.getReserveBuf1(), expected.getReserveBuf1Len()),
              bytes(param.getReserveBuf1(), param.getReserveBuf1Len()));
    EXPECT_EQ(bytes(expected.getReserveBuf2(), expected.getReserveBuf2Len()),
              bytes(param.getReserveBuf2(), param.getReserveBuf2Len()));
    EXPECT_EQ(bytes(expected.getReserveBuf3(), expected.getReserveBuf3Len()),
              bytes(param.getReserveBuf3(), param.getReserveBuf3Len()));
    EXPECT_EQ(expected.getReserveValue1(), param.getReserveValue1());
    EXPECT_EQ(expected.getReserveValue2(), param.getReserveValue2());
    EXPECT_EQ(expected.getReserveValue3(), param.getReserveValue3());
}

} // namespace

TEST(DeviceParamXml, Writes)
{
    DeviceParamXml codec;
    codec.setDeviceParam(sample());
    EXPECT_TRUE(matchesGolden(written(codec), "device/DeviceParamXml.document.xml"));
}

TEST(DeviceParamXml, Reads)
{
    DeviceParamXml codec;
    ASSERT_TRUE(reads(codec, golden("device/DeviceParamXml.document.xml")));
    expectParam(sample(), codec.getDeviceParam());
}

TEST(DeviceParamXml, ResetsWhatIsMissing)
{
    DeviceParamXml codec;
    codec.setDeviceParam(sample());
    ASSERT_TRUE(reads(codec, "<DeviceParam />"));
    expectParam(DeviceParam(), codec.getDeviceParam());
}

TEST(DeviceParamXml, ReadsAnEmptyBuffer)
{
    DeviceParamXml codec;
    codec.setDeviceParam(sample());
    ASSERT_TRUE(reads(codec, "<DeviceParam ReserveBuf1='' ReserveBuf1Len='12' ReserveBuf2Len='4' />"));
    EXPECT_EQ(0, codec.getDeviceParam().getReserveBuf1Len());
    EXPECT_EQ(0, codec.getDeviceParam().getReserveBuf2Len());
}

TEST(DeviceParamXml, WritesEmptyBuffers)
{
    DeviceParamXml codec;
    EXPECT_NE(std::string::npos, written(codec).find(" ReserveBuf1=\"\" ReserveBuf1Len=\"0\" "));
}

TEST(DeviceParamXml, ReadsTheBytesThatTheTextHasWhateverTheLengthBesideIt)
{
    for (const char* length : {"-1", "0", "4", "2147483647", "x"})
    {
        DeviceParamXml codec;
        ASSERT_TRUE(
            reads(codec, std::string("<DeviceParam ReserveBuf3='0001000202' ReserveBuf3Len='") + length + "' />"));
        EXPECT_EQ("01 02 ", bytes(codec.getDeviceParam().getReserveBuf3(), codec.getDeviceParam().getReserveBuf3Len()));
    }
}

TEST(DeviceParamXml, WrapsGroupsAboveAByteAndTakesOthersForZero)
{
    DeviceParamXml codec;
    ASSERT_TRUE(reads(codec, "<DeviceParam ReserveBuf1='0300none' />"));
    EXPECT_EQ("2c 00 ", bytes(codec.getDeviceParam().getReserveBuf1(), codec.getDeviceParam().getReserveBuf1Len()));
}

TEST(DeviceParamXml, CarriesBuffersOfAnyLength)
{
    const std::vector<unsigned char> many(1000, 0xAB);
    DeviceParamXml writer;
    writer.getDeviceParam().setReserveBuf2(many.data(), 1000);
    DeviceParamXml reader;
    ASSERT_TRUE(reads(reader, written(writer)));
    EXPECT_NE(std::string::npos, writer.getXmlString().find(" ReserveBuf2Len=\"4000\" "));
    EXPECT_EQ(bytes(many.data(), 1000),
              bytes(reader.getDeviceParam().getReserveBuf2(), reader.getDeviceParam().getReserveBuf2Len()));
}

TEST(DeviceParamXml, EmptiesABufferThatIsGivenNothing)
{
    const unsigned char byte = 1;
    DeviceParam param = sample();
    param.setReserveBuf1(nullptr, 5);
    param.setReserveBuf2(&byte, 0);
    param.setReserveBuf3(&byte, -1);
    EXPECT_EQ(0, param.getReserveBuf1Len());
    EXPECT_EQ(0, param.getReserveBuf2Len());
    EXPECT_EQ(0, param.getReserveBuf3Len());
}

TEST(DeviceParamXml, CopiesABufferIntoItself)
{
    DeviceParam param = sample();
    param.setReserveBuf1(param.getReserveBuf1() + 1, 2);
    EXPECT_EQ("07 ff ", bytes(param.getReserveBuf1(), param.getReserveBuf1Len()));
}
