#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// How a camera's picture and sound are encoded: the "EncodeQuality" document, and "EncodeQualityList" for several.
///
/// A missing attribute resets its field, in both forms. A missing child leaves its field in the document form and gives
/// a new record in the node form, which prints lines for all that is missing.
class EncodeQualityXml : public IDomainXml
{
public:
    EncodeQualityXml();
    ~EncodeQualityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setEncodeQuality(const EncodeQuality& quality) { quality_ = quality; }
    EncodeQuality& getEncodeQuality() { return quality_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const EncodeQuality& quality);
    static bool readElement(const TiXmlElement& element, EncodeQuality& quality);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const EncodeQuality& quality, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<EncodeQuality>& qualities, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, EncodeQuality& quality) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<EncodeQuality>& qualities) const;
    bool createXmlString(const EncodeQuality& quality, std::string& text) const;
    bool createXmlString(const std::vector<EncodeQuality>& qualities, std::string& text) const;
    bool parseXmlString(const std::string& text, EncodeQuality& quality) const;
    bool parseXmlString(const std::string& text, std::vector<EncodeQuality>& qualities) const;
    /// @}

private:
    EncodeQuality quality_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
