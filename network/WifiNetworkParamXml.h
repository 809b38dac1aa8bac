#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// The addresses that a device has on its wireless network: the "WifiNetworkParam" document.
///
/// A missing attribute leaves its field.
class WifiNetworkParamXml : public IDomainXml
{
public:
    WifiNetworkParamXml();
    ~WifiNetworkParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setWifiNetworkParam(const WifiNetworkParam& param) { param_ = param; }
    WifiNetworkParam& getWifiNetworkParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const WifiNetworkParam& param);
    static bool readElement(const TiXmlElement& element, WifiNetworkParam& param);
    /// @}

private:
    WifiNetworkParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
