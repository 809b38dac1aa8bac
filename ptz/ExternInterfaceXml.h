#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/PtzRecords.h"

#include <string>
#include <tinyxml.h>

/// The port by which something is attached to a device: the "ExternInterface" document.
///
/// The document form carries the RS-485 port only where the kind is 1, and leaves what is missing. The node form
/// carries it always, and resets what is missing; for a missing port it prints a line.
class ExternInterfaceXml : public IDomainXml
{
public:
    ExternInterfaceXml();
    ~ExternInterfaceXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setExternInterface(const ExternInterface& interface) { interface_ = interface; }
    ExternInterface& getExternInterface() { return interface_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ExternInterface& interface);
    static bool readElement(const TiXmlElement& element, ExternInterface& interface);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const ExternInterface& interface, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ExternInterface& interface) const;
    bool createXmlString(const ExternInterface& interface, std::string& text) const;
    bool parseXmlString(const std::string& text, ExternInterface& interface) const;
    /// @}

private:
    ExternInterface interface_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
