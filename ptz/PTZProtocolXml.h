#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/PtzRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// A protocol of heads: the "PTZProtocol" document, and "PTZProtocolList" for several.
///
/// A missing attribute resets its field; in the node form it prints a line as well.
class PTZProtocolXml : public IDomainXml
{
public:
    PTZProtocolXml();
    ~PTZProtocolXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setPTZProtocol(const PTZProtocol& protocol) { protocol_ = protocol; }
    PTZProtocol& getPTZProtocol() { return protocol_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const PTZProtocol& protocol);
    static bool readElement(const TiXmlElement& element, PTZProtocol& protocol);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists only; they are appended to.
    /// @{

    /// Removes the children that @p node has.
    bool createDomainXmlNode(const std::vector<PTZProtocol>& protocols, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<PTZProtocol>& protocols) const;
    bool createXmlString(const std::vector<PTZProtocol>& protocols, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<PTZProtocol>& protocols) const;
    /// @}

private:
    PTZProtocol protocol_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
