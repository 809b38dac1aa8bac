// <RecordFileList>
//     <RecordFile deviceId="D1" deviceIp="192.0.2.1" CameraId="2" RecordFileTime="2015-03-02 08:09:07"
//                 RecordFileName="1.rec">
//         <RecordDirInfoList>
//             <RecordDirInfo DiskType="2" ... />
//         </RecordDirInfoList>
//         <RecordFileBeginTimeStruct TimeZone="8" ... />
//     </RecordFile>
// </RecordFileList>

#include "record/RecordFileExXml.h"

#include "core/Frame.h"
#include "core/TimeStructXml.h"
#include "record/RecordDirInfoXml.h"
#include "record/RecordSteps.h"

#include <utility>

namespace
{

void writeFile(TiXmlNode& list, const RecordFileEx& file)
{
    TiXmlElement& element = frame::appendElement(list, "RecordFile");
    // The peers spell these two with a small letter here, and with a capital in every other list of recordings.
    frame::setText(element, "deviceId", file.getDeviceId());
    frame::setText(element, "deviceIp", file.getDeviceIP());
    frame::setInt(element, "CameraId", file.getCameraId());
    frame::setTime(element, "RecordFileTime", file.getRecordFileBeginTime());
    frame::setText(element, "RecordFileName", file.getRecordFileName());

    RecordDirInfoXml::writeElement(element, {file.getRecordDirInfo()});
    TimeStructXml::writeElement(element, "RecordFileBeginTimeStruct", file.getStructRecordFileBeginTime());
}

void readFile(const TiXmlElement& element, RecordFileEx& file)
{
    file.setDeviceId(frame::textOf(element, "deviceId", file.getDeviceId()));
    file.setDeviceIP(frame::textOf(element, "deviceIp", file.getDeviceIP()));
    file.setCameraId(frame::intOf(element, "CameraId", file.getCameraId()));
    file.setRecordFileBeginTime(frame::timeOf(element, "RecordFileTime", file.getRecordFileBeginTime()));
    file.setRecordFileName(frame::textOf(element, "RecordFileName", file.getRecordFileName()));

    const TiXmlElement* dirs = element.FirstChildElement("RecordDirInfoList");
    if (dirs != nullptr)
    {
        std::vector<RecordDirInfo> infos;
        RecordDirInfoXml::readElement(*dirs, infos);
        if (!infos.empty()) file.setRecordDirInfo(infos.front());
    }

    TimeStruct begin;
    if (TimeStructXml().parseTimeStruct(&element, "RecordFileBeginTimeStruct", begin))
        file.setStructRecordFileBeginTime(begin);
}

} // namespace

RecordFileExXml::RecordFileExXml() = default;

RecordFileExXml::~RecordFileExXml() = default;

void RecordFileExXml::createXmlNode()
{
    writeElement(document_, files_);
}

bool RecordFileExXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordFileExXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordFileList", document_, node_) && parseXmlNode();
}

bool RecordFileExXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, files_);
}

TiXmlElement& RecordFileExXml::writeElement(TiXmlNode& parent, const std::vector<RecordFileEx>& files)
{
    TiXmlElement& element = frame::appendElement(parent, "RecordFileList");
    for (const RecordFileEx& file : files)
        writeFile(element, file);
    return element;
}

bool RecordFileExXml::readElement(const TiXmlElement& element, std::vector<RecordFileEx>& files)
{
    const TiXmlElement* item = frame::firstItem(element, "RecordFile");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        RecordFileEx file;
        readFile(*item, file);
        files.push_back(std::move(file));
    }
    return true;
}
