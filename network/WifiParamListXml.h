#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The wireless networks that a device joins: the "WifiParamList" document.
///
/// The reader appends to the list; what an item lacks is 0, empty or false.
class WifiParamListXml : public IDomainXml
{
public:
    WifiParamListXml();
    ~WifiParamListXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setWifiParamList(const std::vector<WifiParam>& params) { params_ = params; }
    std::vector<WifiParam>& getWifiParamList() { return params_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<WifiParam>& params);
    static bool readElement(const TiXmlElement& element, std::vector<WifiParam>& params);
    /// @}

private:
    std::vector<WifiParam> params_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
