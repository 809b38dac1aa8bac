#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// Three values of free meaning for the server that a device registers with: the "CMSExternConfigParam" document.
///
/// A missing attribute leaves its field in the document form; in the node form it resets it and prints a line.
class CMSExternConfigParamXml : public IDomainXml
{
public:
    CMSExternConfigParamXml();
    ~CMSExternConfigParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setCMSExternConfigParam(const CMSExternConfigParam& config) { config_ = config; }
    CMSExternConfigParam& getCMSExternConfigParam() { return config_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const CMSExternConfigParam& config);
    static bool readElement(const TiXmlElement& element, CMSExternConfigParam& config);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const CMSExternConfigParam& config, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CMSExternConfigParam& config) const;
    bool createXmlString(const CMSExternConfigParam& config, std::string& text) const;
    bool parseXmlString(const std::string& text, CMSExternConfigParam& config) const;
    /// @}

private:
    CMSExternConfigParam config_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
