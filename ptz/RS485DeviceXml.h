#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/PtzRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// An RS-485 port: the "RS485Device" document.
///
/// A missing attribute leaves its field in the document form and resets it in the node form.
class RS485DeviceXml : public IDomainXml
{
public:
    RS485DeviceXml();
    ~RS485DeviceXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setRS485Device(const RS485Device& port) { port_ = port; }
    RS485Device& getRS485Device() { return port_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const RS485Device& port);
    static bool readElement(const TiXmlElement& element, RS485Device& port);
    /// @}

    /// @name Node form
    /// See IDomainXml. Lists, which have no text of their own, are appended to.
    /// @{
    bool createDomainXmlNode(const RS485Device& port, SafePointer<DomainXmlNode>& node) const;
    bool createDomainXmlNode(const std::vector<RS485Device>& ports, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, RS485Device& port) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<RS485Device>& ports) const;
    bool createXmlString(const RS485Device& port, std::string& text) const;
    bool parseXmlString(const std::string& text, RS485Device& port) const;
    /// @}

private:
    RS485Device port_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
