// <LogInfoExList SendEndFlag="true">
//     <LogInfoEx DeviceId="D-17" DeviceIp="192.0.2.17" CameraId="3" UserName="operator" MajorType="4" MinorType="5"
//                LogData="Changed" OldParamInfo="Name: Gate" NewParamInfo="Name: North gate">
//         <LogTime ... />
//     </LogInfoEx>
// </LogInfoExList>

#include "security/LogInfoExXml.h"

#include "core/Frame.h"
#include "core/TimeStructXml.h"

#include <utility>

namespace
{

void writeItem(TiXmlElement& list, const LogInfoEx& info)
{
    TiXmlElement& element = frame::appendElement(list, "LogInfoEx");
    frame::setText(element, "DeviceId", info.getDeviceId());
    frame::setText(element, "DeviceIp", info.getDeviceIp());
    frame::setInt(element, "CameraId", info.getCameraId());
    frame::setText(element, "UserName", info.getUserName());
    frame::setInt(element, "MajorType", info.getMajorType());
    frame::setInt(element, "MinorType", info.getMinorType());
    frame::setText(element, "LogData", info.getLogData());
    frame::setText(element, "OldParamInfo", info.getOldParamInfo());
    frame::setText(element, "NewParamInfo", info.getNewParamInfo());

    TimeStructXml::writeElement(element, "LogTime", info.getLogTime());
}

void readItem(const TiXmlElement& element, LogInfoEx& info)
{
    info.setDeviceId(frame::textOf(element, "DeviceId", ""));
    info.setDeviceIp(frame::textOf(element, "DeviceIp", ""));
    info.setCameraId(frame::intOf(element, "CameraId", 0));
    info.setUserName(frame::textOf(element, "UserName", ""));
    info.setMajorType(frame::intOf(element, "MajorType", 0));
    info.setMinorType(frame::intOf(element, "MinorType", 0));
    info.setLogData(frame::textOf(element, "LogData", ""));
    info.setOldParamInfo(frame::textOf(element, "OldParamInfo", ""));
    info.setNewParamInfo(frame::textOf(element, "NewParamInfo", ""));

    TimeStruct logTime;
    if (TimeStructXml().parseTimeStruct(&element, "LogTime", logTime)) info.setLogTime(logTime);
}

} // namespace

LogInfoExXml::LogInfoExXml() = default;

LogInfoExXml::~LogInfoExXml() = default;

void LogInfoExXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "LogInfoExList");
    frame::setFlag(element, "SendEndFlag", endFlag_);
    for (const LogInfoEx& info : infos_)
        writeItem(element, info);
}

bool LogInfoExXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool LogInfoExXml::parseXmlString()
{
    return frame::parseRoot(text_, "LogInfoExList", document_, node_) && parseXmlNode();
}

bool LogInfoExXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    endFlag_ = frame::flagOf(*element, "SendEndFlag", endFlag_);

    const TiXmlElement* item = frame::firstItem(*element, "LogInfoEx");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        LogInfoEx info;
        readItem(*item, info);
        infos_.push_back(std::move(info));
    }
    return true;
}
