// <AlarmExTypeList>
//     <AlarmExType AlarmTypeName="Motion" MajorAlarmType="1" MinorAlarmType="2" />
// </AlarmExTypeList>

#include "record/AlarmExTypeXml.h"

#include "core/Frame.h"

#include <utility>

TiXmlElement& AlarmExTypeXml::writeElement(TiXmlNode& parent, const AlarmExType& type)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmExType");
    frame::setText(element, "AlarmTypeName", type.getAlarmExTypeName());
    frame::setInt(element, "MajorAlarmType", type.getMajorType());
    frame::setInt(element, "MinorAlarmType", type.getMinorType());
    return element;
}

bool AlarmExTypeXml::readElement(const TiXmlElement& element, AlarmExType& type)
{
    type.setAlarmExTypeName(frame::textOf(element, "AlarmTypeName", type.getAlarmExTypeName()));
    type.setMajorType(frame::intOf(element, "MajorAlarmType", type.getMajorType()));
    type.setMinorType(frame::intOf(element, "MinorAlarmType", type.getMinorType()));
    return true;
}

TiXmlElement& AlarmExTypeXml::writeList(TiXmlNode& parent, const std::vector<AlarmExType>& types)
{
    TiXmlElement& list = frame::appendElement(parent, "AlarmExTypeList");
    for (const AlarmExType& type : types)
        writeElement(list, type);
    return list;
}

std::vector<AlarmExType> AlarmExTypeXml::readList(const TiXmlElement& list)
{
    std::vector<AlarmExType> types;
    const TiXmlElement* item = frame::firstItem(list, "AlarmExType");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmExType type;
        readElement(*item, type);
        types.push_back(std::move(type));
    }
    return types;
}
