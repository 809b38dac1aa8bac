#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// The formats of the texts that a device can lay over a picture: the "OSDFormatAbility" document.
///
/// Reading replaces the list. Every child of "OSDFormatTypeList" counts as an item, whatever its name, and a missing
/// attribute leaves 0 or empty in it. A missing "OSDFormatTypeList" gives false, and the list is as it was; an empty
/// one is an empty list.
class OSDFormatAbilityXml : public IDomainXml
{
public:
    OSDFormatAbilityXml();
    ~OSDFormatAbilityXml() noexcept override;

    /// @name Document form on an element
    /// See IDomainXml. `createXmlNode` makes a new element each time; `getXmlNode` gives it, or the one that was set or
    /// parsed, and null without any. One that was made or parsed lives until the next is, or until the codec dies; one
    /// that was set is its owner's.
    /// @{
    void setOSDFormatAbility(const OSDFormatAbility& ability) { ability_ = ability; }
    OSDFormatAbility& getOSDFormatAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlElement* element) { element_ = element; }
    TiXmlElement* getXmlNode() { return element_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const OSDFormatAbility& ability);
    static bool readElement(const TiXmlElement& element, OSDFormatAbility& ability);
    /// @}

private:
    static void writeContent(TiXmlElement& element, const OSDFormatAbility& ability);

    OSDFormatAbility ability_;
    std::string text_;
    SafePointer<DomainXmlNode> tree_;
    TiXmlElement* element_ = nullptr;
};
