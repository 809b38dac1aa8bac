#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// How a device stands with its wireless network: the "WifiStateParam" document.
///
/// A missing attribute leaves its field.
class WifiStateParamXml : public IDomainXml
{
public:
    WifiStateParamXml();
    ~WifiStateParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setWifiStateParam(const WifiStateParam& param) { param_ = param; }
    WifiStateParam& getWifiStateParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const WifiStateParam& param);
    static bool readElement(const TiXmlElement& element, WifiStateParam& param);
    /// @}

private:
    WifiStateParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
