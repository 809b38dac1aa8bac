#pragma once

#include "core/IDomainXml.h"
#include "domain/PtzRecords.h"

#include <string>
#include <tinyxml.h>

/// The name of an RS-485 port: the "RS485DeviceInfo" document.
///
/// A missing attribute resets its field.
class RS485DeviceInfoXml : public IDomainXml
{
public:
    RS485DeviceInfoXml();
    ~RS485DeviceInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRS485DeviceInfo(const RS485DeviceInfo& info) { info_ = info; }
    RS485DeviceInfo& getRS485DeviceInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const RS485DeviceInfo& info);
    static bool readElement(const TiXmlElement& element, RS485DeviceInfo& info);
    /// @}

private:
    RS485DeviceInfo info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
