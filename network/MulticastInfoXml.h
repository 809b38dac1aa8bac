#pragma once

#include "core/IDomainXml.h"

#include <cstdint>
#include <string>
#include <tinyxml.h>

/// What a device says of itself to a group: the "DeviceInfo" document.
///
/// A missing attribute leaves its field. The texts stand in buffers of fixed width, always with a terminating zero;
/// what is read and does not fit is cut to the buffer's width less one.
class MulticastInfoXml : public IDomainXml
{
public:
    MulticastInfoXml();
    ~MulticastInfoXml() override;

    /// @name Texts that are taken whole or not at all
    /// The getters give the buffers, which are the codec's. The setters give 1, or 0 for null and for a text that is
    /// too long, and then the buffer is as it was.
    /// @{

    /// The device's identity on the network; at most 32 characters, though a text that is read may have 35.
    const char* getDeviceId() const { return deviceId_; }
    int setDeviceId(const char* deviceId);

    /// Its address, as text; at most 48 characters.
    const char* getDeviceIP() const { return deviceIP_; }
    int setDeviceIP(const char* deviceIP);

    /// Mask of its subnet; at most 48 characters.
    const char* getSubnetMask() const { return subnetMask_; }
    int setSubnetMask(const char* subnetMask);

    /// Address of the gateway; at most 48 characters.
    const char* getGateway() const { return gateway_; }
    int setGateway(const char* gateway);

    /// Address of the first name server; at most 48 characters.
    const char* getPreferredDNSIp() const { return preferredDNSIp_; }
    int setPreferredDNSIp(const char* preferredDNSIp);

    /// @}
    /// @name Texts that are cut to fit
    /// The getters give the buffers, which are the codec's. The setters give 1, or 0 for null, and then the buffer is
    /// as it was.
    /// @{

    /// The maker's name; 32 characters.
    const char* getManufacturerName() const { return manufacturerName_; }
    int setManufacturerName(const char* manufacturerName);

    /// Model of the product; 32 characters.
    const char* getProductModel() const { return productModel_; }
    int setProductModel(const char* productModel);

    /// Hardware address, as text; 20 characters.
    const char* getMACAddress() const { return macAddress_; }
    int setMACAddress(const char* macAddress);

    /// Bar code on the device; 16 characters.
    const char* getBarCode() const { return barCode_; }
    int setBarCode(const char* barCode);

    /// Version of the hardware; 48 characters.
    const char* getHardwareVer() const { return hardwareVer_; }
    int setHardwareVer(const char* hardwareVer);

    /// Version of the firmware; 48 characters.
    const char* getSoftwareVer() const { return softwareVer_; }
    int setSoftwareVer(const char* softwareVer);

    /// @}

    /// The device's kind, as the makers number it.
    int getDeviceType() const { return deviceType_; }
    void setDeviceType(int deviceType) { deviceType_ = deviceType; }

    /// Its port for commands.
    std::uint16_t getControlPort() const { return controlPort_; }
    void setControlPort(std::uint16_t controlPort) { controlPort_ = controlPort; }

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }
    /// @}

private:
    char deviceId_[36] = {};
    int deviceType_ = 0;
    char manufacturerName_[33] = {};
    char productModel_[33] = {};
    char macAddress_[21] = {};
    char barCode_[17] = {};
    char hardwareVer_[49] = {};
    char softwareVer_[49] = {};
    char deviceIP_[49] = {};
    char subnetMask_[49] = {};
    char gateway_[49] = {};
    char preferredDNSIp_[49] = {};
    std::uint16_t controlPort_ = 0;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
