#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <vector>

/// Devices by address and bar code: the "DeviceProductInfoList" document.
///
/// The reader takes every child for a device, whatever its name, and appends it to the list. A missing attribute gives
/// an empty text.
class DeviceProductInfoXml : public IDomainXml
{
public:
    DeviceProductInfoXml();
    ~DeviceProductInfoXml() override;

    bool createXmlString(const std::vector<DeviceProductInfo>& products, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<DeviceProductInfo>& products) const;

private:
    static void create(const std::vector<DeviceProductInfo>& products, SafePointer<DomainXmlNode>& node);
    static void createDeviceProductInfo(const DeviceProductInfo& product, SafePointer<DomainXmlNode>& node);
    static void parse(const SafePointer<DomainXmlNode>& node, std::vector<DeviceProductInfo>& products);
    static void parseDeviceProductInfo(const SafePointer<DomainXmlNode>& node, DeviceProductInfo& product);
};
