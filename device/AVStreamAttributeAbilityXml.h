#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// In which ways a stream can be sent: the "AVStreamAttributeAbility" document.
///
/// The two forms put the values in different places, so neither reads the other's text. The document form leaves a
/// missing stream mode and appends to the lists; the node form resets it, prints a line, and replaces the lists. An
/// item without its number is 0.
class AVStreamAttributeAbilityXml : public IDomainXml
{
public:
    AVStreamAttributeAbilityXml();
    ~AVStreamAttributeAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAVStreamAttributeAbility(const AVStreamAttributeAbility& ability) { ability_ = ability; }
    AVStreamAttributeAbility& getAVStreamAttributeAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AVStreamAttributeAbility& ability);
    static bool readElement(const TiXmlElement& element, AVStreamAttributeAbility& ability);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AVStreamAttributeAbility& ability, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AVStreamAttributeAbility& ability) const;
    bool createXmlString(const AVStreamAttributeAbility& ability, std::string& text) const;
    bool parseXmlString(const std::string& text, AVStreamAttributeAbility& ability) const;
    /// @}

private:
    AVStreamAttributeAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
