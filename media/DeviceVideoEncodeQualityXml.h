#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <vector>

/// How the streams of a camera's picture are encoded: the "DeviceVideoEncodeQuality" document, and
/// "DeviceVideoEncodeQualityList" for several.
///
/// A missing "CameraID" resets the camera's number and prints a line. The streams replace those that the record has;
/// without their container there are none.
class DeviceVideoEncodeQualityXml : public IDomainXml
{
public:
    DeviceVideoEncodeQualityXml();
    ~DeviceVideoEncodeQualityXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const DeviceVideoEncodeQuality& quality, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<DeviceVideoEncodeQuality>& qualities,
                             SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DeviceVideoEncodeQuality& quality) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                            std::vector<DeviceVideoEncodeQuality>& qualities) const;
    bool createXmlString(const DeviceVideoEncodeQuality& quality, std::string& text) const;
    bool createXmlString(const std::vector<DeviceVideoEncodeQuality>& qualities, std::string& text) const;
    bool parseXmlString(const std::string& text, DeviceVideoEncodeQuality& quality) const;
    bool parseXmlString(const std::string& text, std::vector<DeviceVideoEncodeQuality>& qualities) const;
    /// @}
};
