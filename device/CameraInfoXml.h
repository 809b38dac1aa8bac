#pragma once

#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <vector>

/// A camera among those of several devices: the "CameraInfo" document, and "CameraInfoList" for several.
///
/// A missing attribute resets its field.
class CameraInfoXml
{
public:
    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const CameraInfo& camera, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<CameraInfo>& cameras, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CameraInfo& camera) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<CameraInfo>& cameras) const;
    bool createXmlString(const CameraInfo& camera, std::string& text) const;
    bool createXmlString(const std::vector<CameraInfo>& cameras, std::string& text) const;
    bool parseXmlString(const std::string& text, CameraInfo& camera) const;
    bool parseXmlString(const std::string& text, std::vector<CameraInfo>& cameras) const;
    /// @}
};
