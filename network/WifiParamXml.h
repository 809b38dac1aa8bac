#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// A wireless network that a device joins: the "WifiParam" document, and "WifiParamList" for several.
///
/// A missing attribute leaves its field in the document form and resets it in the node form.
class WifiParamXml : public IDomainXml
{
public:
    WifiParamXml();
    ~WifiParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setWifiParam(const WifiParam& param) { param_ = param; }
    WifiParam& getWifiParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const WifiParam& param);
    static bool readElement(const TiXmlElement& element, WifiParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const WifiParam& param, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<WifiParam>& params, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, WifiParam& param) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<WifiParam>& params) const;
    bool createXmlString(const WifiParam& param, std::string& text) const;
    bool createXmlString(const std::vector<WifiParam>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, WifiParam& param) const;
    bool parseXmlString(const std::string& text, std::vector<WifiParam>& params) const;
    /// @}

private:
    WifiParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
