#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>

/// A text on the picture, at a position in whole numbers: the "OSDInfo" document.
///
/// A missing attribute resets its field, in both forms; the node form prints a line for it. The "OSDInfo" of
/// OSDInfoExXml bears the same root: nothing in a text but its attributes tells the two apart.
class OSDInfoXml : public IDomainXml
{
public:
    OSDInfoXml();
    ~OSDInfoXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setOSDInfo(const OSDInfo& info) { info_ = info; }
    OSDInfo& getOSDInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const OSDInfo& info);
    static bool readElement(const TiXmlElement& element, OSDInfo& info);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const OSDInfo& info, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, OSDInfo& info) const;
    bool createXmlString(const OSDInfo& info, std::string& text) const;
    bool parseXmlString(const std::string& text, OSDInfo& info) const;
    /// @}

private:
    OSDInfo info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
