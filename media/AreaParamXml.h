#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>

/// A rectangle on a picture, in whole numbers: the "AreaParam" document.
///
/// A missing attribute resets its field, in both forms; the node form prints a line for it. The "AreaParam" of
/// AreaParamV2Xml bears the same root.
class AreaParamXml : public IDomainXml
{
public:
    AreaParamXml();
    ~AreaParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAreaParam(const AreaParam& area) { area_ = area; }
    AreaParam& getAreaParam() { return area_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AreaParam& area);
    static bool readElement(const TiXmlElement& element, AreaParam& area);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AreaParam& area, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AreaParam& area) const;
    bool createXmlString(const AreaParam& area, std::string& text) const;
    bool parseXmlString(const std::string& text, AreaParam& area) const;
    /// @}

private:
    AreaParam area_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
