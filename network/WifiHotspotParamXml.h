#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// A wireless network in reach of a device: the "WifiHotspotParam" document.
///
/// A missing attribute leaves its field.
class WifiHotspotParamXml : public IDomainXml
{
public:
    WifiHotspotParamXml();
    ~WifiHotspotParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setWifiHotspotParam(const WifiHotspotParam& hotspot) { hotspot_ = hotspot; }
    WifiHotspotParam& getWifiHotspotParam() { return hotspot_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const WifiHotspotParam& hotspot);
    static bool readElement(const TiXmlElement& element, WifiHotspotParam& hotspot);
    /// @}

private:
    WifiHotspotParam hotspot_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
