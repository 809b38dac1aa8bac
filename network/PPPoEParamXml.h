#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// How a device dials up: the "PPPoEParam" document.
///
/// A missing attribute resets its field, in both forms.
class PPPoEParamXml : public IDomainXml
{
public:
    PPPoEParamXml();
    ~PPPoEParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setPPPoEParam(const PPPoEParam& param) { param_ = param; }
    PPPoEParam& getPPPoEParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const PPPoEParam& param);
    static bool readElement(const TiXmlElement& element, PPPoEParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const PPPoEParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PPPoEParam& param) const;
    bool createXmlString(const PPPoEParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, PPPoEParam& param) const;
    /// @}

private:
    PPPoEParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
