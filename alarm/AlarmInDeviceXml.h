#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// An alarm input of a device: the "AlarmInDevice" document.
///
/// A missing attribute resets its field, in both forms; the node form prints a line for it.
class AlarmInDeviceXml : public IDomainXml
{
public:
    AlarmInDeviceXml();
    ~AlarmInDeviceXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAlarmInDevice(const AlarmInDevice& device) { device_ = device; }
    AlarmInDevice& getAlarmInDevice() { return device_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmInDevice& device);
    static bool readElement(const TiXmlElement& element, AlarmInDevice& device);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AlarmInDevice& device, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmInDevice& device) const;
    bool createXmlString(const AlarmInDevice& device, std::string& text) const;
    bool parseXmlString(const std::string& text, AlarmInDevice& device) const;
    /// @}

private:
    AlarmInDevice device_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
