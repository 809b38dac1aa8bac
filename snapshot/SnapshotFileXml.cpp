// <SnapshotFile snapshotFileTime="1425283747045" snapshotPolicyType="2" lockflag="true" snapshotFileLength="51200">
//     <SnapshotFileTimeStruct TimeZone="8" ... />
//     <AlarmExTypeList>
//         <AlarmExType AlarmTypeName="Motion" MajorAlarmType="1" MinorAlarmType="2" />
//     </AlarmExTypeList>
// </SnapshotFile>

#include "snapshot/SnapshotFileXml.h"

#include "core/Conversions.h"
#include "core/Frame.h"
#include "core/TimeStructXml.h"
#include "domain/TimeConverter.h"
#include "record/AlarmExTypeXml.h"

#include <cstdio>

SnapshotFileXml::SnapshotFileXml() = default;

SnapshotFileXml::~SnapshotFileXml() = default;

void SnapshotFileXml::createXmlNode()
{
    writeElement(document_, file_);
}

bool SnapshotFileXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SnapshotFileXml::parseXmlString()
{
    return frame::parseRoot(text_, "SnapshotFile", document_, node_) && parseXmlNode();
}

bool SnapshotFileXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, file_);
}

TiXmlElement& SnapshotFileXml::writeElement(TiXmlNode& parent, const SnapshotFile& file)
{
    TiXmlElement& element = frame::appendElement(parent, "SnapshotFile");
    // Small letters at the begin, and in all of "lockflag": so the peers tell this document from that of a stretch.
    frame::setInt64(element, "snapshotFileTime", file.getSnapshotFileTime());
    frame::setInt(element, "snapshotPolicyType", file.getSnapshotPolicyType());
    frame::setFlag(element, "lockflag", file.getLockFlag());
    frame::setInt(element, "snapshotFileLength", file.getSnapshotFileLength());

    TimeStructXml::writeElement(element, "SnapshotFileTimeStruct", file.getStructSnapshotFileTime());
    AlarmExTypeXml::writeList(element, file.getAlarmExTypeList());
    return element;
}

bool SnapshotFileXml::readElement(const TiXmlElement& element, SnapshotFile& file)
{
    file.setSnapshotFileTime(frame::wholeNumberOf(element, "snapshotFileTime", file.getSnapshotFileTime()));
    file.setSnapshotPolicyType(frame::intOf(element, "snapshotPolicyType", file.getSnapshotPolicyType()));
    file.setLockFlag(frame::flagOf(element, "lockflag", file.getLockFlag()));
    file.setSnapshotFileLength(frame::intOf(element, "snapshotFileLength", file.getSnapshotFileLength()));
    createSnapshotFileName(file);

    TimeStruct time;
    if (TimeStructXml().parseTimeStruct(&element, "SnapshotFileTimeStruct", time)) file.setStructSnapshotFileTime(time);

    // Unlike in a search, an empty list says nothing.
    const TiXmlElement* types = element.FirstChildElement("AlarmExTypeList");
    if (types != nullptr && frame::firstItem(*types, "AlarmExType") != nullptr)
        file.setAlarmExTypeList(AlarmExTypeXml::readList(*types));
    return true;
}

void SnapshotFileXml::createSnapshotFileName(SnapshotFile& file)
{
    const long long milliseconds = file.getSnapshotFileTime();
    ZTDateTime time;
    TimeConverter().longToStruct(static_cast<unsigned long>(milliseconds / 1000), time);

    char name[256];
    std::snprintf(name, sizeof(name), "%s_%s_%d_%04d%02d%02d%02d%02d%02d%03d_%d%s", file.getDeviceId().c_str(),
                  file.getDeviceIP().c_str(), file.getCameraId(), time.year, time.month, time.day, time.hour,
                  time.minute, time.second, static_cast<int>(milliseconds % 1000), file.getSnapshotPolicyType(),
                  ".jpg");
    file.setSnapshotFileName(name);
}

bool SnapshotFileXml::Int642Str(const long long& value, std::string& text) const
{
    text = frame::integerText(value).characters;
    return true;
}

bool SnapshotFileXml::str2Int64(const std::string& text, long long& value) const
{
    value = frame::wholeNumberIn(text.c_str());
    return true;
}
