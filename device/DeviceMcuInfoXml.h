#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>

/// The controllers inside a device: the "DeviceMcuInfo" document.
///
/// The reader replaces the list. A controller without a property has an empty text there; items of other names are
/// passed over.
class DeviceMcuInfoXml : public IDomainXml
{
public:
    DeviceMcuInfoXml();
    ~DeviceMcuInfoXml() override;

    bool createXmlString(const DeviceMcuInfo& info, std::string& text) const;
    bool parseXmlString(const std::string& text, DeviceMcuInfo& info) const;
};
