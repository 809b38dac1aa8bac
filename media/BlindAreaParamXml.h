#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// What is hidden of the pictures of cameras: the "BlindAreaParamList" document, and in the node form also
/// "BlindAreaParam" for one camera.
///
/// A missing "Type" gives 1 in the document form and 0 in the node form; anything else that is missing gives 0, false
/// or an empty value. The node form prints a line for a missing attribute. "BlindAreaParamList" is the root of
/// BlindAreaParamV2Xml, too.
class BlindAreaParamXml : public IDomainXml
{
public:
    BlindAreaParamXml();
    ~BlindAreaParamXml() override;

    /// @name Document form
    /// See IDomainXml. The reader appends to the list.
    /// @{
    void setBlindAreaParamList(const std::vector<BlindAreaParam>& areas) { areas_ = areas; }
    std::vector<BlindAreaParam>& getBlindAreaParamList() { return areas_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const std::vector<BlindAreaParam>& areas);
    static bool readElement(const TiXmlElement& element, std::vector<BlindAreaParam>& areas);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const BlindAreaParam& area, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<BlindAreaParam>& areas, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, BlindAreaParam& area) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<BlindAreaParam>& areas) const;
    bool createXmlString(const BlindAreaParam& area, std::string& text) const;
    bool createXmlString(const std::vector<BlindAreaParam>& areas, std::string& text) const;
    bool parseXmlString(const std::string& text, BlindAreaParam& area) const;
    bool parseXmlString(const std::string& text, std::vector<BlindAreaParam>& areas) const;
    /// @}

private:
    std::vector<BlindAreaParam> areas_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
