#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// How a device has the address of one of its cards found by a name: the "DDNSParamV2" document.
///
/// A missing attribute resets its field, in both forms. The card's attribute is spelt "DDNSNetwordCardName".
class DDNSParamV2Xml : public IDomainXml
{
public:
    DDNSParamV2Xml();
    ~DDNSParamV2Xml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDDNSParamV2(const DDNSParamV2& param) { param_ = param; }
    DDNSParamV2& getDDNSParamV2() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DDNSParamV2& param);
    static bool readElement(const TiXmlElement& element, DDNSParamV2& param);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const DDNSParamV2& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DDNSParamV2& param) const;
    bool createXmlString(const DDNSParamV2& param, std::string& text) const;
    bool parseXmlString(const std::string& text, DDNSParamV2& param) const;
    /// @}

private:
    DDNSParamV2 param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
