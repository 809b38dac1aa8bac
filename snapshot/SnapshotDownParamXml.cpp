// <SnapshotDownParam CameraID="1" SnapBeginTime="1425283747045" SnapIndex="2" SnapMajor="3" SnapMinor="4" />

#include "snapshot/SnapshotDownParamXml.h"

#include "core/Conversions.h"
#include "core/Frame.h"

#include <utility>

SnapshotDownParamXml::SnapshotDownParamXml() = default;

SnapshotDownParamXml::~SnapshotDownParamXml() = default;

bool SnapshotDownParamXml::createXmlString(const SnapshotDownParam& param, std::string& text) const
{
    std::string time;
    Int642Str(param.getSnapTime(), time);

    SafePointer<DomainXmlNode> node = frame::makeNode("SnapshotDownParam");
    node->setProperty("CameraID", param.getCameraID());
    node->setProperty("SnapBeginTime", time);
    node->setProperty("SnapIndex", param.getSnapIndex());
    node->setProperty("SnapMajor", param.getSnapAlarmType().getMajorType());
    node->setProperty("SnapMinor", param.getSnapAlarmType().getMinorType());
    return DomainXmlNode::toString(node, text);
}

bool SnapshotDownParamXml::parseXmlString(const std::string& text, SnapshotDownParam& param) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "SnapshotDownParam", node)) return false;

    int cameraId = 0;
    std::string timeText;
    int index = 0;
    int major = 0;
    int minor = 0;
    if (!node->getProperty("CameraID", cameraId) || !node->getProperty("SnapBeginTime", timeText) ||
        !node->getProperty("SnapIndex", index) || !node->getProperty("SnapMajor", major) ||
        !node->getProperty("SnapMinor", minor))
        return false;

    long long time = 0;
    str2Int64(timeText, time);
    AlarmExType type;
    type.setMajorType(major);
    type.setMinorType(minor);

    param.setCameraID(cameraId);
    param.setSnapTime(time);
    param.setSnapIndex(index);
    param.getSnapAlarmType() = std::move(type);
    return true;
}

bool SnapshotDownParamXml::Int642Str(const long long& value, std::string& text) const
{
    text = frame::integerText(value).characters;
    return true;
}

bool SnapshotDownParamXml::str2Int64(const std::string& text, long long& value) const
{
    value = frame::wholeNumberIn(text.c_str());
    return true;
}
