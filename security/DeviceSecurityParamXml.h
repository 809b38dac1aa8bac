#pragma once

#include "core/IDomainXml.h"
#include "domain/SecurityRecords.h"

#include <string>
#include <tinyxml.h>

/// The security of a device: the "DeviceSecurityParam" document.
///
/// A missing attribute resets its field; without the child "CommunicationSecurityParam" a text is refused and the
/// record stays. Every reading prints a line with what it read.
///
/// The two halves of the codec don't meet: it writes the whole document, and `setXmlNode`, `parseXmlNode` and
/// `readElement` take the child.
class DeviceSecurityParamXml : public IDomainXml
{
public:
    DeviceSecurityParamXml();
    ~DeviceSecurityParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceSecurityParam(const DeviceSecurityParam& param) { param_ = param; }
    DeviceSecurityParam& getDeviceSecurityParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DeviceSecurityParam& param);
    static bool readElement(const TiXmlElement& element, DeviceSecurityParam& param);
    /// @}

private:
    DeviceSecurityParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
