// <TimeZoneAbility>
//     <TimeZoneType TimeZoneId="12" Name="Middle Europe" STDName="CET" DSTName="CEST" />
// </TimeZoneAbility>

#include "device/TimeZoneAbilityXml.h"

#include "core/Frame.h"

#include <utility>
#include <vector>

TimeZoneAbilityXml::TimeZoneAbilityXml() = default;

TimeZoneAbilityXml::~TimeZoneAbilityXml() = default;

bool TimeZoneAbilityXml::createXmlString(const TimeZoneAbility& ability, std::string& text) const
{
    SafePointer<DomainXmlNode> root = frame::makeNode("TimeZoneAbility");
    for (const TimeZoneType& type : ability.getTimeZoneTypeList())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(root, "TimeZoneType");
        item->setProperty("TimeZoneId", type.getTimeZoneID());
        item->setProperty("Name", type.getTimeZoneName());
        item->setProperty("STDName", type.getSTDTimeZoneAbbreviation());
        item->setProperty("DSTName", type.getDSTTimeZoneAbbreviation());
    }
    return DomainXmlNode::toString(root, text);
}

bool TimeZoneAbilityXml::parseXmlString(const std::string& text, TimeZoneAbility& ability) const
{
    SafePointer<DomainXmlNode> root;
    if (!DomainXmlNode::parse(text, "TimeZoneAbility", root)) return false;

    std::vector<TimeZoneType> types;
    TiXmlElement* item = frame::firstChild(root);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> child = frame::nodeOf(*item);
        TimeZoneType type;
        type.setTimeZoneID(frame::intProperty(child, "TimeZoneId", 0));
        type.setTimeZoneName(frame::textProperty(child, "Name", ""));
        type.setSTDTimeZoneAbbreviation(frame::textProperty(child, "STDName", ""));
        type.setDSTTimeZoneAbbreviation(frame::textProperty(child, "DSTName", ""));
        types.push_back(std::move(type));
    }
    ability.getTimeZoneTypeList() = std::move(types);
    return true;
}
