#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/MediaRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The size of the tiles of a mosaic: the "MosaicParam" document, and "MosaicParamList" for several.
///
/// A missing attribute resets its field, in both forms; the node form prints a line for it.
class MosaicParamXml : public IDomainXml
{
public:
    MosaicParamXml();
    ~MosaicParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setMosaicParam(const MosaicParam& mosaic) { mosaic_ = mosaic; }
    MosaicParam& getMosaicParam() { return mosaic_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const MosaicParam& mosaic);
    static bool readElement(const TiXmlElement& element, MosaicParam& mosaic);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const MosaicParam& mosaic, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<MosaicParam>& mosaics, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, MosaicParam& mosaic) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<MosaicParam>& mosaics) const;
    bool createXmlString(const MosaicParam& mosaic, std::string& text) const;
    bool createXmlString(const std::vector<MosaicParam>& mosaics, std::string& text) const;
    bool parseXmlString(const std::string& text, MosaicParam& mosaic) const;
    bool parseXmlString(const std::string& text, std::vector<MosaicParam>& mosaics) const;
    /// @}

private:
    MosaicParam mosaic_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
