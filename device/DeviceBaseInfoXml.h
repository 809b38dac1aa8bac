#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"

#include <string>
#include <tinyxml.h>

/// What a device is: the "DeviceBaseInfo" document.
///
/// A missing attribute resets its field. A missing "Version" leaves the versions; cameras are added to those that the
/// record has.
class DeviceBaseInfoXml : public IDomainXml
{
public:
    DeviceBaseInfoXml();
    ~DeviceBaseInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDeviceBaseInfo(const DeviceBaseInfo& info) { info_ = info; }
    DeviceBaseInfo& getDeviceBaseInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DeviceBaseInfo& info);
    static bool readElement(const TiXmlElement& element, DeviceBaseInfo& info);
    /// @}

private:
    DeviceBaseInfo info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
