#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// What one stream of a camera can do: the "AVStreamAbility" document.
///
/// The document form appends to the list and leaves a missing value. It finds the attribute ability in the element
/// behind "StreamId" and the region ability in the one behind "SupportROI", whatever they are called; without such an
/// element the field becomes a fresh record, with stream mode 1 in the case of the attribute ability. The node form
/// finds all by their names, and replaces what is missing by 0, false, a fresh record or an empty list.
class AVStreamAbilityXml : public IDomainXml
{
public:
    AVStreamAbilityXml();
    ~AVStreamAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setAVStreamAbility(const AVStreamAbility& ability) { ability_ = ability; }
    AVStreamAbility& getAVStreamAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const AVStreamAbility& ability);
    static bool readElement(const TiXmlElement& element, AVStreamAbility& ability);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const AVStreamAbility& ability, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AVStreamAbility& ability) const;
    bool createXmlString(const AVStreamAbility& ability, std::string& text) const;
    bool parseXmlString(const std::string& text, AVStreamAbility& ability) const;
    /// @}

private:
    AVStreamAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
