// <SnapshotFile SnapshotFileBeginTime="1425283747045" SnapshotFileEndTime="1425287347045" SnapshotCount="3">
//     <SnapshotFileTimeStruct TimeZone="8" ... />
//     <AlarmExType MajorAlarmType="1" MinorAlarmType="2" />
// </SnapshotFile>

#include "snapshot/SnapshotFileExXml.h"

#include "core/Conversions.h"
#include "core/Frame.h"
#include "core/TimeStructXml.h"

#include <utility>

SnapshotFileExXml::SnapshotFileExXml() = default;

SnapshotFileExXml::~SnapshotFileExXml() = default;

void SnapshotFileExXml::createXmlNode()
{
    writeElement(document_, file_);
}

bool SnapshotFileExXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SnapshotFileExXml::parseXmlString()
{
    return frame::parseRoot(text_, "SnapshotFile", document_, node_) && parseXmlNode();
}

bool SnapshotFileExXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, file_);
}

TiXmlElement& SnapshotFileExXml::writeElement(TiXmlNode& parent, const SnapshotFileEx& file)
{
    TiXmlElement& element = frame::appendElement(parent, "SnapshotFile");
    frame::setInt64(element, "SnapshotFileBeginTime", file.getSnapshotFileBeginTime());
    frame::setInt64(element, "SnapshotFileEndTime", file.getSnapshotFileEndTime());
    frame::setInt(element, "SnapshotCount", file.getSnapshotCount());

    TimeStructXml::writeElement(element, "SnapshotFileTimeStruct", file.getStructSnapshotFileTime());

    // A single alarm, without a list around it and without its name.
    TiXmlElement& type = frame::appendElement(element, "AlarmExType");
    frame::setInt(type, "MajorAlarmType", file.getSnapshotAlarmExType().getMajorType());
    frame::setInt(type, "MinorAlarmType", file.getSnapshotAlarmExType().getMinorType());
    return element;
}

bool SnapshotFileExXml::readElement(const TiXmlElement& element, SnapshotFileEx& file)
{
    file.setSnapshotFileBeginTime(
        frame::wholeNumberOf(element, "SnapshotFileBeginTime", file.getSnapshotFileBeginTime()));
    file.setSnapshotFileEndTime(frame::wholeNumberOf(element, "SnapshotFileEndTime", file.getSnapshotFileEndTime()));
    file.setSnapshotCount(frame::intOf(element, "SnapshotCount", file.getSnapshotCount()));

    TimeStruct time;
    if (TimeStructXml().parseTimeStruct(&element, "SnapshotFileTimeStruct", time)) file.setStructSnapshotFileTime(time);

    const TiXmlElement* child = element.FirstChildElement("AlarmExType");
    if (child != nullptr)
    {
        AlarmExType type;
        type.setMajorType(frame::intOf(*child, "MajorAlarmType", 0));
        type.setMinorType(frame::intOf(*child, "MinorAlarmType", 0));
        file.getSnapshotAlarmExType() = std::move(type);
    }
    return true;
}

bool SnapshotFileExXml::Int642Str(const long long& value, std::string& text) const
{
    text = frame::integerText(value).characters;
    return true;
}

bool SnapshotFileExXml::str2Int64(const std::string& text, long long& value) const
{
    value = frame::wholeNumberIn(text.c_str());
    return true;
}
