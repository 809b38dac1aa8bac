// <DeviceInfo DeviceID="D-17" DeviceType="2" ManufacturerName="Example works" ... ControlPort="30001" />

#include "network/MulticastInfoXml.h"

#include "core/Frame.h"

#include <cstddef>
#include <cstring>

namespace
{

constexpr std::size_t longestDeviceId = 32; // peers have no room for more, though the buffer has
constexpr std::size_t longestAddress = 48;

/// Copies as much of @p value as fits before the terminating zero.
/// @return its length
std::size_t copyWhatFits(char* buffer, std::size_t width, const char* value)
{
    const std::size_t length = strnlen(value, width - 1);
    std::memmove(buffer, value, length); // a caller may give the buffer itself
    buffer[length] = '\0';
    return length;
}

/// The rest of the buffer is zero then.
int setCut(char* buffer, std::size_t width, const char* value)
{
    if (value == nullptr) return 0;
    const std::size_t length = copyWhatFits(buffer, width, value);
    std::memset(buffer + length, 0, width - length);
    return 1;
}

/// What stands in the buffer behind the terminating zero stays.
int setWhole(char* buffer, std::size_t longest, const char* value)
{
    if (value == nullptr || strnlen(value, longest + 1) > longest) return 0;
    copyWhatFits(buffer, longest + 1, value);
    return 1;
}

void readText(const TiXmlElement& element, const char* name, char* buffer, std::size_t width)
{
    const char* value = frame::attributeOf(element, name);
    if (value != nullptr) copyWhatFits(buffer, width, value);
}

} // namespace

MulticastInfoXml::MulticastInfoXml() = default;

MulticastInfoXml::~MulticastInfoXml() = default;

int MulticastInfoXml::setDeviceId(const char* deviceId)
{
    return setWhole(deviceId_, longestDeviceId, deviceId);
}

int MulticastInfoXml::setDeviceIP(const char* deviceIP)
{
    return setWhole(deviceIP_, longestAddress, deviceIP);
}

int MulticastInfoXml::setSubnetMask(const char* subnetMask)
{
    return setWhole(subnetMask_, longestAddress, subnetMask);
}

int MulticastInfoXml::setGateway(const char* gateway)
{
    return setWhole(gateway_, longestAddress, gateway);
}

int MulticastInfoXml::setPreferredDNSIp(const char* preferredDNSIp)
{
    return setWhole(preferredDNSIp_, longestAddress, preferredDNSIp);
}

int MulticastInfoXml::setManufacturerName(const char* manufacturerName)
{
    return setCut(manufacturerName_, sizeof(manufacturerName_), manufacturerName);
}

int MulticastInfoXml::setProductModel(const char* productModel)
{
    return setCut(productModel_, sizeof(productModel_), productModel);
}

int MulticastInfoXml::setMACAddress(const char* macAddress)
{
    return setCut(macAddress_, sizeof(macAddress_), macAddress);
}

int MulticastInfoXml::setBarCode(const char* barCode)
{
    return setCut(barCode_, sizeof(barCode_), barCode);
}

int MulticastInfoXml::setHardwareVer(const char* hardwareVer)
{
    return setCut(hardwareVer_, sizeof(hardwareVer_), hardwareVer);
}

int MulticastInfoXml::setSoftwareVer(const char* softwareVer)
{
    return setCut(softwareVer_, sizeof(softwareVer_), softwareVer);
}

void MulticastInfoXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "DeviceInfo");
    frame::setText(element, "DeviceID", deviceId_);
    frame::setInt(element, "DeviceType", deviceType_);
    frame::setText(element, "ManufacturerName", manufacturerName_);
    frame::setText(element, "ProductModel", productModel_);
    frame::setText(element, "MACAddress", macAddress_);
    frame::setText(element, "BarCode", barCode_);
    frame::setText(element, "HardwareVer", hardwareVer_);
    frame::setText(element, "SoftwareVer", softwareVer_);
    frame::setText(element, "DeviceIP", deviceIP_);
    frame::setText(element, "SubnetMask", subnetMask_);
    frame::setText(element, "Gateway", gateway_);
    frame::setText(element, "PreferredDNSIP", preferredDNSIp_);
    frame::setInt(element, "ControlPort", controlPort_);
}

bool MulticastInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool MulticastInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceInfo", document_, node_) && parseXmlNode();
}

bool MulticastInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    // The limits of the setters do not hold here, the widths of the buffers do.
    readText(*element, "DeviceID", deviceId_, sizeof(deviceId_));
    deviceType_ = frame::intOf(*element, "DeviceType", deviceType_);
    readText(*element, "ManufacturerName", manufacturerName_, sizeof(manufacturerName_));
    readText(*element, "ProductModel", productModel_, sizeof(productModel_));
    readText(*element, "MACAddress", macAddress_, sizeof(macAddress_));
    readText(*element, "BarCode", barCode_, sizeof(barCode_));
    readText(*element, "HardwareVer", hardwareVer_, sizeof(hardwareVer_));
    readText(*element, "SoftwareVer", softwareVer_, sizeof(softwareVer_));
    readText(*element, "DeviceIP", deviceIP_, sizeof(deviceIP_));
    readText(*element, "SubnetMask", subnetMask_, sizeof(subnetMask_));
    readText(*element, "Gateway", gateway_, sizeof(gateway_));
    readText(*element, "PreferredDNSIP", preferredDNSIp_, sizeof(preferredDNSIp_));
    controlPort_ = frame::uint16Of(*element, "ControlPort", controlPort_);
    return true;
}
