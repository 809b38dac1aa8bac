#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <vector>

/// The streams of a device: the "DeviceAVStreamParam" document, and "DeviceAVStreamParamList" for several devices.
///
/// Nothing may be missing: the readers give false at the first property or container that is, and what was read before
/// it stays set. The streams of a device are replaced, and only when all of them were read; lists of devices are
/// appended to. Items of other names are passed over.
class DeviceAVStreamParamXml : public IDomainXml
{
public:
    DeviceAVStreamParamXml();
    ~DeviceAVStreamParamXml() override;

    bool createXmlString(const DeviceAVStreamParam& device, std::string& text) const;
    bool createXmlString(const std::vector<DeviceAVStreamParam>& devices, std::string& text) const;
    bool parseXmlString(const std::string& text, DeviceAVStreamParam& device) const;
    bool parseXmlString(const std::string& text, std::vector<DeviceAVStreamParam>& devices) const;

    /// @name Nodes
    /// Each takes the node that bears the values itself; false if that is empty.
    /// @{
    bool createAVStreamParamNode(const AVStreamParam& stream, SafePointer<DomainXmlNode>& node) const;
    /// Adds an "AVStreamParam" child for each stream.
    bool createAVStreamParamListNode(const std::vector<AVStreamParam>& streams, SafePointer<DomainXmlNode>& node) const;
    bool createDeviceAVStreamParamNode(const DeviceAVStreamParam& device, SafePointer<DomainXmlNode>& node) const;
    /// Adds a "DeviceAVStreamParam" child for each device.
    bool createDeviceAVStreamParamListNode(const std::vector<DeviceAVStreamParam>& devices,
                                           SafePointer<DomainXmlNode>& node) const;
    bool parseAVStreamParam(const SafePointer<DomainXmlNode>& node, AVStreamParam& stream) const;
    /// Appends the streams; those before a failed one stay in the list.
    bool parseAVStreamParamList(const SafePointer<DomainXmlNode>& node, std::vector<AVStreamParam>& streams) const;
    bool parseDeviceAVStreamParam(const SafePointer<DomainXmlNode>& node, DeviceAVStreamParam& device) const;
    /// Appends the devices; those before a failed one stay in the list.
    bool parseDeviceAVStreamParamList(const SafePointer<DomainXmlNode>& node,
                                      std::vector<DeviceAVStreamParam>& devices) const;
    /// @}
};
