#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// What a camera's sensor can do: the "SensorAbility" document.
///
/// Reading replaces the list. Every child of "SensorController" counts as an item, whatever its name, and a missing
/// attribute leaves 0 in it. A missing "SensorController" gives false, and the list is as it was; an empty one is an
/// empty list.
class SensorAbilityXml : public IDomainXml
{
public:
    SensorAbilityXml();
    ~SensorAbilityXml() noexcept override;

    /// @name Document form on an element
    /// See IDomainXml. `createXmlNode` makes a new element each time; `getXmlNode` gives it, or the one that was set or
    /// parsed, and null without any. One that was made or parsed lives until the next is, or until the codec dies; one
    /// that was set is its owner's.
    /// @{
    void setSensorAbility(const SensorAbility& ability) { ability_ = ability; }
    SensorAbility& getSensorAbility() { return ability_; }
    void createXmlNode();
    bool createXmlString();
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlElement* element) { element_ = element; }
    TiXmlElement* getXmlNode() { return element_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const SensorAbility& ability);
    static bool readElement(const TiXmlElement& element, SensorAbility& ability);
    /// @}

private:
    static void writeContent(TiXmlElement& element, const SensorAbility& ability);

    SensorAbility ability_;
    std::string text_;
    SafePointer<DomainXmlNode> tree_;
    TiXmlElement* element_ = nullptr;
};
