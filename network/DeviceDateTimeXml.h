#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// How a device shows time: the "DeviceDateTime" document.
///
/// A missing attribute resets its field.
class DeviceDateTimeXml : public IDomainXml
{
public:
    DeviceDateTimeXml();
    ~DeviceDateTimeXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceDateTime(const DeviceDateTime& dateTime) { dateTime_ = dateTime; }
    DeviceDateTime& getDeviceDateTime() { return dateTime_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DeviceDateTime& dateTime);
    static bool readElement(const TiXmlElement& element, DeviceDateTime& dateTime);
    /// @}

private:
    DeviceDateTime dateTime_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
