#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// A kind of bit rate: the "BitrateType" document, and "BitrateTypeList" for several.
///
/// A missing attribute resets its field, but in the node form a missing "BitrateTypeId" gives 1.
class BitrateTypeXml : public IDomainXml
{
public:
    BitrateTypeXml();
    ~BitrateTypeXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setBitrateType(const BitrateType& type) { type_ = type; }
    BitrateType& getBitrateType() { return type_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const BitrateType& type);
    static bool readElement(const TiXmlElement& element, BitrateType& type);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists only; they are appended to.
    /// @{

    /// Removes the children that @p node has.
    bool createDomainXmlNode(const std::vector<BitrateType>& types, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<BitrateType>& types) const;
    bool createXmlString(const std::vector<BitrateType>& types, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<BitrateType>& types) const;
    /// @}

private:
    BitrateType type_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
