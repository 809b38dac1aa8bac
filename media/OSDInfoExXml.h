#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>

/// A text on the picture, at a position in fractions: the "OSDInfo" document.
///
/// A missing attribute resets its field, in both forms. The "OSDInfo" of OSDInfoXml bears the same root: nothing in a
/// text but its attributes tells the two apart. A position beyond the range of a `float` reads as infinity.
class OSDInfoExXml : public IDomainXml
{
public:
    OSDInfoExXml();
    ~OSDInfoExXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setOSDInfo(const OSDInfoEx& info) { info_ = info; }
    OSDInfoEx& getOSDInfo() { return info_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const OSDInfoEx& info);
    static bool readElement(const TiXmlElement& element, OSDInfoEx& info);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const OSDInfoEx& info, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, OSDInfoEx& info) const;
    bool createXmlString(const OSDInfoEx& info, std::string& text) const;
    bool parseXmlString(const std::string& text, OSDInfoEx& info) const;
    /// @}

private:
    OSDInfoEx info_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
