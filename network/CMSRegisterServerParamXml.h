#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// The four servers that a device registers with: the "CMSRegisterServerParam" document.
///
/// A missing attribute leaves its field in the document form; in the node form it resets it and prints a line. Further
/// servers cannot be carried; CMSRegisterInfoParamXml has a list of them.
class CMSRegisterServerParamXml : public IDomainXml
{
public:
    CMSRegisterServerParamXml();
    ~CMSRegisterServerParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setCMSRegisterServerParam(const CMSRegisterServerParam& server) { server_ = server; }
    CMSRegisterServerParam& getCMSRegisterServerParam() { return server_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const CMSRegisterServerParam& server);
    static bool readElement(const TiXmlElement& element, CMSRegisterServerParam& server);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const CMSRegisterServerParam& server, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CMSRegisterServerParam& server) const;
    bool createXmlString(const CMSRegisterServerParam& server, std::string& text) const;
    bool parseXmlString(const std::string& text, CMSRegisterServerParam& server) const;
    /// @}

private:
    CMSRegisterServerParam server_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
