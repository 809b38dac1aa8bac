#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>

/// All that a device draws on its cameras' pictures: the "DeviceOSDInfo" document.
///
/// A missing "PositionOSDType" gives 0 and a missing list an empty one. A missing "OSDPrintTime" gives the kind of text
/// 7 and the time 5. Each of them prints its lines, and reading goes on. Writing prints its lines and gives false for a
/// node without an element.
class DeviceOSDInfoXml : public IDomainXml
{
public:
    DeviceOSDInfoXml();
    ~DeviceOSDInfoXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const DeviceOSDInfo& info, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DeviceOSDInfo& info) const;
    bool createXmlString(const DeviceOSDInfo& info, std::string& text) const;
    bool parseXmlString(const std::string& text, DeviceOSDInfo& info) const;
    /// @}
};
