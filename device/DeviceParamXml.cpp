// <DeviceParam DeviceId="D1" DeviceType="2" CameraId="1" ... ReserveBuf1="00000255" ReserveBuf1Len="8" ... />
//
// The lengths are those of the texts, four times the bytes. They are written for the peers that look for them.

#include "device/DeviceParamXml.h"

#include "core/Frame.h"
#include "domain/ByteCharConvert.h"

#include <cstring>

namespace
{

constexpr int digitsPerByte = 4;

void setBytes(TiXmlElement& element, const char* name, const char* lengthName, const unsigned char* bytes, int length)
{
    // Room for the terminating zero too.
    std::string text(static_cast<std::size_t>(length) * digitsPerByte + 1, '\0');
    int textLength = 0;
    ByteCharConvert::convertByteToChar(text.data(), textLength, bytes, length);
    text.resize(static_cast<std::size_t>(textLength));
    frame::setText(element, name, text);
    frame::setInt(element, lengthName, textLength);
}

std::vector<unsigned char> bytesOf(const TiXmlElement& element, const char* name)
{
    const char* text = frame::attributeOf(element, name);
    if (text == nullptr) return {};

    const std::size_t length = std::strlen(text);
    std::vector<unsigned char> bytes(length / digitsPerByte);
    int byteCount = 0;
    ByteCharConvert::convertCharToByte(bytes.data(), byteCount, text, static_cast<int>(length));
    bytes.resize(static_cast<std::size_t>(byteCount));
    return bytes;
}

} // namespace

DeviceParamXml::DeviceParamXml() = default;

DeviceParamXml::~DeviceParamXml() = default;

void DeviceParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool DeviceParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DeviceParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceParam", document_, node_) && parseXmlNode();
}

bool DeviceParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& DeviceParamXml::writeElement(TiXmlNode& parent, const DeviceParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "DeviceParam");
    frame::setText(element, "DeviceId", param.getDeviceId());
    frame::setInt(element, "DeviceType", param.getDeviceType());
    frame::setInt(element, "CameraId", param.getCameraId());
    frame::setInt(element, "ComId", param.getComId());
    frame::setInt(element, "AlarmInId", param.getAlarmInId());
    frame::setInt(element, "AlarmOutId", param.getAlarmOutId());
    frame::setInt(element, "IPProtoVer", param.getIPProtoVer());
    frame::setInt(element, "ImageFormatId", param.getImageFormatId());
    setBytes(element, "ReserveBuf1", "ReserveBuf1Len", param.getReserveBuf1(), param.getReserveBuf1Len());
    setBytes(element, "ReserveBuf2", "ReserveBuf2Len", param.getReserveBuf2(), param.getReserveBuf2Len());
    setBytes(element, "ReserveBuf3", "ReserveBuf3Len", param.getReserveBuf3(), param.getReserveBuf3Len());
    frame::setInt(element, "ReserveValue1", param.getReserveValue1());
    frame::setInt(element, "ReserveValue2", param.getReserveValue2());
    frame::setInt(element, "ReserveValue3", param.getReserveValue3());
    return element;
}

bool DeviceParamXml::readElement(const TiXmlElement& element, DeviceParam& param)
{
    param.setDeviceId(frame::textOf(element, "DeviceId", ""));
    param.setDeviceType(frame::intOf(element, "DeviceType", 0));
    param.setCameraId(frame::intOf(element, "CameraId", 0));
    param.setComId(frame::intOf(element, "ComId", 0));
    param.setAlarmInId(frame::intOf(element, "AlarmInId", 0));
    param.setAlarmOutId(frame::intOf(element, "AlarmOutId", 0));
    param.setIPProtoVer(frame::intOf(element, "IPProtoVer", 0));
    param.setImageFormatId(frame::intOf(element, "ImageFormatId", 0));
    const std::vector<unsigned char> reserveBuf1 = bytesOf(element, "ReserveBuf1");
    param.setReserveBuf1(reserveBuf1.data(), static_cast<int>(reserveBuf1.size()));
    const std::vector<unsigned char> reserveBuf2 = bytesOf(element, "ReserveBuf2");
    param.setReserveBuf2(reserveBuf2.data(), static_cast<int>(reserveBuf2.size()));
    const std::vector<unsigned char> reserveBuf3 = bytesOf(element, "ReserveBuf3");
    param.setReserveBuf3(reserveBuf3.data(), static_cast<int>(reserveBuf3.size()));
    param.setReserveValue1(frame::intOf(element, "ReserveValue1", 0));
    param.setReserveValue2(frame::intOf(element, "ReserveValue2", 0));
    param.setReserveValue3(frame::intOf(element, "ReserveValue3", 0));
    return true;
}
