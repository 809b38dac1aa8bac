#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The wireless networks in reach of a device: the "WifiHotspotParamList" document.
///
/// The reader appends to the list; what an item lacks is 0 or empty.
class WifiHotspotParamListXml : public IDomainXml
{
public:
    WifiHotspotParamListXml();
    ~WifiHotspotParamListXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setWifiHotspotParamList(const std::vector<WifiHotspotParam>& hotspots) { hotspots_ = hotspots; }
    std::vector<WifiHotspotParam>& getWifiHotspotParamList() { return hotspots_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<WifiHotspotParam>& hotspots);
    static bool readElement(const TiXmlElement& element, std::vector<WifiHotspotParam>& hotspots);
    /// @}

private:
    std::vector<WifiHotspotParam> hotspots_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
