// <AlarmInfoExList>
//     <AlarmInfoEx DeviceId="D1" DeviceIp="192.0.2.1" DeviceType="2" MajorAlarmType="1" MinorAlarmType="3"
//                  AlarmSourceId="S1" AlarmSourceName="Door" AlarmFlag="1" AlarmTime="1425254400"
//                  Description="Door open">
//         <AlarmTimeStruct ... />
//     </AlarmInfoEx>
// </AlarmInfoExList>

#include "alarm/AlarmInfoExXml.h"

#include "core/Frame.h"
#include "core/TimeStructXml.h"

#include <utility>

AlarmInfoExXml::AlarmInfoExXml() = default;

AlarmInfoExXml::~AlarmInfoExXml() = default;

void AlarmInfoExXml::createXmlNode()
{
    writeElement(document_, infos_);
}

bool AlarmInfoExXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmInfoExXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmInfoExList", document_, node_) && parseXmlNode();
}

bool AlarmInfoExXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, infos_);
}

TiXmlElement& AlarmInfoExXml::writeElement(TiXmlNode& parent, const std::vector<AlarmInfoEx>& infos)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmInfoExList");
    for (const AlarmInfoEx& info : infos)
    {
        TiXmlElement& item = frame::appendElement(element, "AlarmInfoEx");
        frame::setText(item, "DeviceId", info.getDeviceId());
        frame::setText(item, "DeviceIp", info.getDeviceIP());
        frame::setInt(item, "DeviceType", info.getDeviceType());
        frame::setInt(item, "MajorAlarmType", info.getMajorType());
        frame::setInt(item, "MinorAlarmType", info.getMinorType());
        frame::setText(item, "AlarmSourceId", info.getSourceId());
        frame::setText(item, "AlarmSourceName", info.getSourceName());
        frame::setInt(item, "AlarmFlag", info.getAlarmFlag());
        frame::setUnsigned(item, "AlarmTime", info.getAlarmTime());
        frame::setText(item, "Description", info.getDescription());

        TimeStructXml::writeElement(item, "AlarmTimeStruct", info.getStructAlarmTime());
    }
    return element;
}

bool AlarmInfoExXml::readElement(const TiXmlElement& element, std::vector<AlarmInfoEx>& infos)
{
    const TiXmlElement* item = frame::firstItem(element, "AlarmInfoEx");
    for (; item != nullptr; item = item->NextSiblingElement("AlarmInfoEx"))
    {
        AlarmInfoEx info;
        info.setDeviceId(frame::textOf(*item, "DeviceId", ""));
        info.setDeviceIP(frame::textOf(*item, "DeviceIp", ""));
        info.setDeviceType(frame::intOf(*item, "DeviceType", 0));
        info.setMajorType(frame::intOf(*item, "MajorAlarmType", 0));
        info.setMinorType(frame::intOf(*item, "MinorAlarmType", 0));
        info.setSourceId(frame::textOf(*item, "AlarmSourceId", ""));
        info.setSourceName(frame::textOf(*item, "AlarmSourceName", ""));
        info.setAlarmFlag(frame::intOf(*item, "AlarmFlag", 0));
        info.setAlarmTime(frame::unsignedLongOf(*item, "AlarmTime", 0));
        info.setDescription(frame::textOf(*item, "Description", ""));

        TimeStruct time;
        if (TimeStructXml().parseTimeStruct(item, "AlarmTimeStruct", time)) info.setStructAlarmTime(time);
        infos.push_back(std::move(info));
    }
    return true;
}
