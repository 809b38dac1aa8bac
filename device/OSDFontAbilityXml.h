#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// The looks of the texts that a device can lay over a picture: the "OSDFontAbility" document.
///
/// Reading gives a fresh record. Every child of a container counts as an item, whatever its name, and a missing
/// attribute leaves 0 or empty in it. A missing container gives false, and the record is as it was; an empty one is an
/// empty list.
class OSDFontAbilityXml : public IDomainXml
{
public:
    OSDFontAbilityXml();
    ~OSDFontAbilityXml() noexcept override;

    /// @name Document form on an element
    /// See IDomainXml. `createXmlNode` makes a new element each time; `getXmlNode` gives it, or the one that was set or
    /// parsed, and null without any. One that was made or parsed lives until the next is, or until the codec dies; one
    /// that was set is its owner's.
    /// @{
    void setOSDFontAbility(const OSDFontAbility& ability) { ability_ = ability; }
    OSDFontAbility& getOSDFontAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlElement* element) { element_ = element; }
    TiXmlElement* getXmlNode() { return element_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const OSDFontAbility& ability);
    static bool readElement(const TiXmlElement& element, OSDFontAbility& ability);
    /// @}

private:
    static void writeContent(TiXmlElement& element, const OSDFontAbility& ability);

    OSDFontAbility ability_;
    std::string text_;
    SafePointer<DomainXmlNode> tree_;
    TiXmlElement* element_ = nullptr;
};
