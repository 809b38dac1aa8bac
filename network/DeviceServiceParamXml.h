#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// Which services a device starts: the "DeviceServiceParam" document.
///
/// A missing attribute resets its field to true: what nobody forbids is started.
class DeviceServiceParamXml : public IDomainXml
{
public:
    DeviceServiceParamXml();
    ~DeviceServiceParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceServiceParam(const DeviceServiceParam& param) { param_ = param; }
    DeviceServiceParam& getDeviceServiceParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DeviceServiceParam& param);
    static bool readElement(const TiXmlElement& element, DeviceServiceParam& param);
    /// @}

private:
    DeviceServiceParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
