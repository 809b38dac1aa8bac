#pragma once

#include "core/IDomainXml.h"
#include "domain/PtzRecords.h"

#include <string>
#include <tinyxml.h>

/// The name of an RS-232 port: the "RS232DeviceInfo" document.
///
/// A missing attribute resets its field.
class RS232DeviceInfoXml : public IDomainXml
{
public:
    RS232DeviceInfoXml();
    ~RS232DeviceInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRS232DeviceInfo(const RS232DeviceInfo& info) { info_ = info; }
    RS232DeviceInfo& getRS232DeviceInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const RS232DeviceInfo& info);
    static bool readElement(const TiXmlElement& element, RS232DeviceInfo& info);
    /// @}

private:
    RS232DeviceInfo info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
