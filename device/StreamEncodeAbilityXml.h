#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// What a stream can carry in one encoding: the "StreamEncodeAbility" document.
///
/// The two forms put the encoder type in different places, so neither reads the other's. The document form leaves a
/// missing one and appends to the list; the node form resets it, prints a line, and replaces the list.
class StreamEncodeAbilityXml : public IDomainXml
{
public:
    StreamEncodeAbilityXml();
    ~StreamEncodeAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setStreamEncodeAbility(const StreamEncodeAbility& ability) { ability_ = ability; }
    StreamEncodeAbility& getStreamEncodeAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const StreamEncodeAbility& ability);
    static bool readElement(const TiXmlElement& element, StreamEncodeAbility& ability);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const StreamEncodeAbility& ability, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, StreamEncodeAbility& ability) const;
    bool createXmlString(const StreamEncodeAbility& ability, std::string& text) const;
    bool parseXmlString(const std::string& text, StreamEncodeAbility& ability) const;
    /// @}

private:
    StreamEncodeAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
