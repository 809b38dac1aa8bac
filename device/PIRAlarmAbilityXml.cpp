// <PIRAlarmAbility>
//     <PIRAlarmAbilityItem PIRAlarmAbilitySupportFlag="true" />
// </PIRAlarmAbility>

#include "device/PIRAlarmAbilityXml.h"

#include "core/Frame.h"

#include <cstdio>

PIRAlarmAbilityXml::PIRAlarmAbilityXml() = default;

PIRAlarmAbilityXml::~PIRAlarmAbilityXml() noexcept = default;

void PIRAlarmAbilityXml::createXmlNode()
{
    tree_ = frame::makeNode("PIRAlarmAbility");
    element_ = tree_->getXmlNode();
    writeContent(*element_, ability_);
}

// Parents take the element; nobody sends this document on its own.
bool PIRAlarmAbilityXml::createXmlString()
{
    return true;
}

bool PIRAlarmAbilityXml::parseXmlString()
{
    return true;
}

bool PIRAlarmAbilityXml::parseXmlNode()
{
    if (element_ == nullptr)
    {
        // Without an element there are no children to list.
        std::puts("objPIRAlarmAbilityNode->getAllConfigNodeList-------Failed");
        return false;
    }
    return readElement(*element_, ability_);
}

TiXmlElement& PIRAlarmAbilityXml::writeElement(TiXmlNode& parent, const PIRAlarmAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "PIRAlarmAbility");
    writeContent(element, ability);
    return element;
}

bool PIRAlarmAbilityXml::readElement(const TiXmlElement& element, PIRAlarmAbility& ability)
{
    const TiXmlElement* item = element.FirstChildElement("PIRAlarmAbilityItem");
    if (item == nullptr)
    {
        std::puts("m_pobjPIRAlarmAbilityNode->getConfigNode-------Failed");
        return false;
    }
    ability.setPIRAlarmSupportFlag(frame::flagOf(*item, "PIRAlarmAbilitySupportFlag", false));
    return true;
}

void PIRAlarmAbilityXml::writeContent(TiXmlElement& element, const PIRAlarmAbility& ability)
{
    TiXmlElement& item = frame::appendElement(element, "PIRAlarmAbilityItem");
    frame::setFlag(item, "PIRAlarmAbilitySupportFlag", ability.getPIRAlarmSupportFlag());
}
