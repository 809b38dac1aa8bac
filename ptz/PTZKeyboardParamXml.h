#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/PtzRecords.h"

#include <string>
#include <tinyxml.h>

/// A keyboard that drives the heads of a device: the "PTZKeyboardParam" document.
///
/// The document form leaves what is missing. The node form resets it, and prints a line for a missing port.
class PTZKeyboardParamXml : public IDomainXml
{
public:
    PTZKeyboardParamXml();
    ~PTZKeyboardParamXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setPTZKeyboardParam(const PTZKeyboardParam& keyboard) { keyboard_ = keyboard; }
    PTZKeyboardParam& getPTZKeyboardParam() { return keyboard_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const PTZKeyboardParam& keyboard);
    static bool readElement(const TiXmlElement& element, PTZKeyboardParam& keyboard);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const PTZKeyboardParam& keyboard, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PTZKeyboardParam& keyboard) const;
    bool createXmlString(const PTZKeyboardParam& keyboard, std::string& text) const;
    bool parseXmlString(const std::string& text, PTZKeyboardParam& keyboard) const;
    /// @}

private:
    PTZKeyboardParam keyboard_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
