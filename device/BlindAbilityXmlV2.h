#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// What a device can do to hide areas of its picture: the "BlindAreaAbility" document.
///
/// Reading gives a fresh record, in which a missing attribute leaves 0. A missing "MaxArea" or container gives false,
/// and the record is as it was; an empty container is an empty list.
class BlindAbilityXmlV2 : public IDomainXml
{
public:
    BlindAbilityXmlV2();
    ~BlindAbilityXmlV2() noexcept override;

    /// @name Document form on an element
    /// See IDomainXml. `createXmlNode` makes a new element each time; `getXmlNode` gives it, or the one that was set or
    /// parsed, and null without any. One that was made or parsed lives until the next is, or until the codec dies; one
    /// that was set is its owner's.
    /// @{
    void setBlindAbilityV2(const BlindAbilityV2& ability) { ability_ = ability; }
    BlindAbilityV2& getBlindAbilityV2() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlElement* element) { element_ = element; }
    TiXmlElement* getXmlNode() { return element_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const BlindAbilityV2& ability);
    static bool readElement(const TiXmlElement& element, BlindAbilityV2& ability);
    /// @}

private:
    static void writeContent(TiXmlElement& element, const BlindAbilityV2& ability);

    BlindAbilityV2 ability_;
    std::string text_;
    SafePointer<DomainXmlNode> tree_;
    TiXmlElement* element_ = nullptr;
};
