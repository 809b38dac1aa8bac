#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>

/// How a device talks to its peers: the "CommunicationParam" document.
///
/// The forms write unlike texts. The document form has the attribute on the root and resets the field when it is
/// missing, which it is in a text of the node form. That one has the attribute on a "CommunicationParam" inside the
/// root: without that element it gives false, without the attribute the field is 1.
class CommunicationParamXml : public IDomainXml
{
public:
    CommunicationParamXml();
    ~CommunicationParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setCommunicationParam(const CommunicationParam& param) { param_ = param; }
    CommunicationParam& getCommunicationParam() { return param_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const CommunicationParam& param);
    static bool readElement(const TiXmlElement& element, CommunicationParam& param);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{

    /// Removes the children that @p node has, and adds a "CommunicationParam".
    bool createDomainXmlNode(const CommunicationParam& param, SafePointer<DomainXmlNode>& node) const;
    /// Reads the "CommunicationParam" inside @p node; false, with @p param as it was, if there is none.
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CommunicationParam& param) const;
    bool createXmlString(const CommunicationParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, CommunicationParam& param) const;
    /// @}

private:
    CommunicationParam param_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
