#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// A wireless network that a device joins: the "ZT_WifiParam" document, and "ZT_WifiParamList" for several.
///
/// The twin of WifiParamXml under names with a prefix, and with a record of its own. A missing attribute leaves its
/// field in the document form and resets it in the node form.
class ZT_WifiParamXml : public IDomainXml
{
public:
    ZT_WifiParamXml();
    ~ZT_WifiParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setZT_WifiParam(const ZT_WifiParam& param) { param_ = param; }
    ZT_WifiParam& getZT_WifiParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ZT_WifiParam& param);
    static bool readElement(const TiXmlElement& element, ZT_WifiParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const ZT_WifiParam& param, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<ZT_WifiParam>& params, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ZT_WifiParam& param) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<ZT_WifiParam>& params) const;
    bool createXmlString(const ZT_WifiParam& param, std::string& text) const;
    bool createXmlString(const std::vector<ZT_WifiParam>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, ZT_WifiParam& param) const;
    bool parseXmlString(const std::string& text, std::vector<ZT_WifiParam>& params) const;
    /// @}

private:
    ZT_WifiParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
