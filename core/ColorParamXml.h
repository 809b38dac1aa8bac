#pragma once

#include "core/IDomainXml.h"
#include "domain/CoreRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// A colour: the "ColorParam" document.
///
/// A missing attribute leaves its field in the document form and resets it in the node form.
class ColorParamXml : public IDomainXml
{
public:
    ColorParamXml();
    ~ColorParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setColorParam(const ColorParam& color) { color_ = color; }
    ColorParam& getColorParam() { return color_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ColorParam& color);
    static bool readElement(const TiXmlElement& element, ColorParam& color);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{

    /// Removes the children that @p node has.
    bool createDomainXmlNode(const ColorParam& color, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ColorParam& color) const;
    bool createXmlString(const ColorParam& color, std::string& text) const;
    bool parseXmlString(const std::string& text, ColorParam& color) const;
    /// @}

private:
    ColorParam color_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
