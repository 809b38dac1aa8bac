#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// A kind of device: the "DeviceType" document.
///
/// A missing attribute resets its field, in both forms.
class DeviceTypeXml : public IDomainXml
{
public:
    DeviceTypeXml();
    ~DeviceTypeXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceType(const DeviceType& type) { type_ = type; }
    DeviceType& getDeviceType() { return type_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DeviceType& type);
    static bool readElement(const TiXmlElement& element, DeviceType& type);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const DeviceType& type, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DeviceType& type) const;
    bool createXmlString(const DeviceType& type, std::string& text) const;
    bool parseXmlString(const std::string& text, DeviceType& type) const;
    /// @}

private:
    DeviceType type_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
