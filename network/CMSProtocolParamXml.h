#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// Which protocol a device speaks with its server: the "CMSProtocolParam" document.
///
/// A missing attribute leaves its field.
class CMSProtocolParamXml : public IDomainXml
{
public:
    CMSProtocolParamXml();
    ~CMSProtocolParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setCMSProtocolParam(const CMSProtocolParam& param) { param_ = param; }
    CMSProtocolParam& getCMSProtocolParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const CMSProtocolParam& param);
    static bool readElement(const TiXmlElement& element, CMSProtocolParam& param);
    /// @}

private:
    CMSProtocolParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
