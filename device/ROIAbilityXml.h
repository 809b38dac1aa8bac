#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// What a device can do to encode regions of a picture better than the rest: the "ROIAbility" document.
///
/// A missing attribute leaves its field in the document form and resets it in the node form. Every child counts as an
/// entry of the map, whatever its name; of two with one level the last counts, and a missing number is 0. Entries are
/// added to those that the record has in the document form, and replace them in the node form.
class ROIAbilityXml : public IDomainXml
{
public:
    ROIAbilityXml();
    ~ROIAbilityXml() override;

    /// @name Document form
    /// See IDomainXml.
    /// @{
    void setROIAbility(const ROIAbility& ability) { ability_ = ability; }
    ROIAbility& getROIAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlNode* node) { node_ = node; }
    TiXmlNode* getXmlNode() { return &document_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const ROIAbility& ability);
    static bool readElement(const TiXmlElement& element, ROIAbility& ability);
    /// @}

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const ROIAbility& ability, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ROIAbility& ability) const;
    bool createXmlString(const ROIAbility& ability, std::string& text) const;
    bool parseXmlString(const std::string& text, ROIAbility& ability) const;
    /// @}

private:
    ROIAbility ability_;
    std::string text_;
    TiXmlNode* node_ = nullptr;
    TiXmlDocument document_;
};
