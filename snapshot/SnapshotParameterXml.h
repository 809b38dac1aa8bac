#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/SnapshotRecords.h"

#include <string>
#include <tinyxml.h>

/// How pictures are taken: the "SnapshotParameter" document.
///
/// A missing attribute resets its field, in both forms. A missing resolution is left in the document form and reset in
/// the node form.
class SnapshotParameterXml : public IDomainXml
{
public:
    SnapshotParameterXml();
    ~SnapshotParameterXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setSnapshotParameter(const SnapshotParameter& parameter) { parameter_ = parameter; }
    SnapshotParameter& getSnapshotParameter() { return parameter_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const SnapshotParameter& parameter);
    static bool readElement(const TiXmlElement& element, SnapshotParameter& parameter);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const SnapshotParameter& parameter, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SnapshotParameter& parameter) const;
    bool createXmlString(const SnapshotParameter& parameter, std::string& text) const;
    bool parseXmlString(const std::string& text, SnapshotParameter& parameter) const;
    /// @}

private:
    SnapshotParameter parameter_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
