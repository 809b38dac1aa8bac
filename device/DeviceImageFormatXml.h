#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// The format in which one camera sends its pictures: the "DeviceImageFormat" document.
///
/// A missing attribute resets its field.
class DeviceImageFormatXml : public IDomainXml
{
public:
    DeviceImageFormatXml();
    ~DeviceImageFormatXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceImageFormat(const DeviceImageFormat& format) { format_ = format; }
    DeviceImageFormat& getDeviceImageFormat() { return format_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DeviceImageFormat& format);
    static bool readElement(const TiXmlElement& element, DeviceImageFormat& format);
    /// @}

private:
    DeviceImageFormat format_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
