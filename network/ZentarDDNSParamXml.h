#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// How a device has its address found by a name at the maker's own service: the "ZentarDDNSParam" document.
///
/// A missing attribute resets its field, in both forms. The card's attribute is spelt "ZentarDDNSNetWordCardName".
class ZentarDDNSParamXml : public IDomainXml
{
public:
    ZentarDDNSParamXml();
    ~ZentarDDNSParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setZentarDDNSParam(const ZentarDDNSParam& param) { param_ = param; }
    ZentarDDNSParam& getZentarDDNSParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ZentarDDNSParam& param);
    static bool readElement(const TiXmlElement& element, ZentarDDNSParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const ZentarDDNSParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ZentarDDNSParam& param) const;
    bool createXmlString(const ZentarDDNSParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, ZentarDDNSParam& param) const;
    /// @}

private:
    ZentarDDNSParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
