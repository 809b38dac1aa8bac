#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// An alarm output of a device: the "AlarmOutDevice" document, and "AlarmOutDeviceList" for several.
///
/// A missing attribute resets its field, in both forms; the node form prints a line for it.
class AlarmOutDeviceXml : public IDomainXml
{
public:
    AlarmOutDeviceXml();
    ~AlarmOutDeviceXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmOutDevice(const AlarmOutDevice& device) { device_ = device; }
    AlarmOutDevice& getAlarmOutDevice() { return device_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmOutDevice& device);
    static bool readElement(const TiXmlElement& element, AlarmOutDevice& device);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const AlarmOutDevice& device, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<AlarmOutDevice>& devices, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmOutDevice& device) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<AlarmOutDevice>& devices) const;
    bool createXmlString(const AlarmOutDevice& device, std::string& text) const;
    bool createXmlString(const std::vector<AlarmOutDevice>& devices, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmOutDevice& device) const;
    bool parseXmlString(const std::string& text, std::vector<AlarmOutDevice>& devices) const;
    /// @}

private:
    AlarmOutDevice device_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
