#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// How a device has its address found by a name: the "DDNSParam" document.
///
/// A missing attribute resets its field, in both forms.
class DDNSParamXml : public IDomainXml
{
public:
    DDNSParamXml();
    ~DDNSParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setDDNSParam(const DDNSParam& param) { param_ = param; }
    DDNSParam& getDDNSParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const DDNSParam& param);
    static bool readElement(const TiXmlElement& element, DDNSParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const DDNSParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, DDNSParam& param) const;
    bool createXmlString(const DDNSParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, DDNSParam& param) const;
    /// @}

private:
    DDNSParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
