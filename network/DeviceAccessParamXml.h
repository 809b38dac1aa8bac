#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// The address and the ports of a device: the "DeviceAccessParam" document.
///
/// A missing attribute resets its field.
class DeviceAccessParamXml : public IDomainXml
{
public:
    DeviceAccessParamXml();
    ~DeviceAccessParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceAccessParam(const DeviceAccessParam& param) { param_ = param; }
    DeviceAccessParam& getDeviceAccessParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DeviceAccessParam& param);
    static bool readElement(const TiXmlElement& element, DeviceAccessParam& param);
    /// @}

private:
    DeviceAccessParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
