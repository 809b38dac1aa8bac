#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// Which part of a device is meant: the "DeviceParam" document.
///
/// A missing attribute resets its field. The reserve buffers travel as four decimal digits a byte; a buffer is as long
/// as its text says, whatever the length beside it.
class DeviceParamXml : public IDomainXml
{
public:
    DeviceParamXml();
    ~DeviceParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceParam(const DeviceParam& param) { param_ = param; }
    DeviceParam& getDeviceParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DeviceParam& param);
    static bool readElement(const TiXmlElement& element, DeviceParam& param);
    /// @}

private:
    DeviceParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
