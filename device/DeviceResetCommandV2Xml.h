#pragma once

#include "core/IDomainXml.h"

#include <string>
#include <vector>

/// The settings that a device keeps when it is reset, as the device numbers them: the "HoldTypeList" document.
///
/// The reader takes every child for an item, whatever its name, and appends it to the list; one without "Type" gives 0.
class DeviceResetCommandV2Xml : public IDomainXml
{
public:
    DeviceResetCommandV2Xml();
    ~DeviceResetCommandV2Xml() override;

    bool createXmlString(const std::vector<int>& holdTypes, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<int>& holdTypes) const;
};
