#pragma once

#include "core/IDomainXml.h"
#include "domain/DeviceRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <tinyxml.h>

/// Whether a device has a passive infrared detector: the "PIRAlarmAbility" element of other documents.
///
/// It is a child only: its string operations do nothing. Reading gives a fresh record, in which a missing attribute
/// leaves false. Without "PIRAlarmAbilityItem", or without an element at all, it prints a line and gives false, and the
/// record is as it was.
class PIRAlarmAbilityXml : public IDomainXml
{
public:
    PIRAlarmAbilityXml();
    ~PIRAlarmAbilityXml() noexcept override;

    /// @name Document form on an element
    /// See IDomainXml. `createXmlNode` makes a new element each time; `getXmlNode` gives it, or the one that was set,
    /// and null without either. One that was made lives until the next is, or until the codec dies; one that was set is
    /// its owner's.
    /// @{
    void setPIRAlarmAbility(const PIRAlarmAbility& ability) { ability_ = ability; }
    PIRAlarmAbility& getPIRAlarmAbility() { return ability_; }
    void createXmlNode();
    /// Does nothing; true.
    bool createXmlString();
    /// Does nothing; true.
    bool parseXmlString();
    bool parseXmlNode();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    void setXmlNode(TiXmlElement* element) { element_ = element; }
    TiXmlElement* getXmlNode() { return element_; }

    static TiXmlElement& writeElement(TiXmlNode& parent, const PIRAlarmAbility& ability);
    static bool readElement(const TiXmlElement& element, PIRAlarmAbility& ability);
    /// @}

private:
    static void writeContent(TiXmlElement& element, const PIRAlarmAbility& ability);

    PIRAlarmAbility ability_;
    std::string text_;
    SafePointer<DomainXmlNode> tree_;
    TiXmlElement* element_ = nullptr;
};
