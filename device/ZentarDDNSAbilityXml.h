#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// Whether a device can be found through its makers' name service: the "ZentarDDNSAbility" document.
///
/// A missing attribute resets its field, in both forms.
class ZentarDDNSAbilityXml : public IDomainXml
{
public:
    ZentarDDNSAbilityXml();
    ~ZentarDDNSAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setZentarDDNSAbility(const ZentarDDNSAbility& ability) { ability_ = ability; }
    ZentarDDNSAbility& getZentarDDNSAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ZentarDDNSAbility& ability);
    static bool readElement(const TiXmlElement& element, ZentarDDNSAbility& ability);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const ZentarDDNSAbility& ability, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ZentarDDNSAbility& ability) const;
    bool createXmlString(const ZentarDDNSAbility& ability, std::string& text) const;
    bool parseXmlString(const std::string& text, ZentarDDNSAbility& ability) const;
    /// @}

private:
    ZentarDDNSAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
