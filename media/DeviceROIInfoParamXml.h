#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <vector>

/// The favoured regions of one camera of a device: the "DeviceROIInfoParam" document, and "DeviceROIInfoParamList" for
/// several cameras.
///
/// A missing "CameraInfo" resets the camera, and a missing "ROIInfoParamList" empties the list.
class DeviceROIInfoParamXml : public IDomainXml
{
public:
    DeviceROIInfoParamXml();
    ~DeviceROIInfoParamXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const DeviceROIInfoParam& regions, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DeviceROIInfoParam& regions) const;
    bool createXmlString(const DeviceROIInfoParam& regions, std::string& text) const;
    bool createXmlString(const std::vector<DeviceROIInfoParam>& cameras, std::string& text) const;
    bool parseXmlString(const std::string& text, DeviceROIInfoParam& regions) const;
    bool parseXmlString(const std::string& text, std::vector<DeviceROIInfoParam>& cameras) const;
    /// @}
};
