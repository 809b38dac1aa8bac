// <SnapshotFileList>
//     <DeviceInfo deviceId="D1" deviceIp="192.0.2.1" CameraId="2">
//         <SnapshotFile SnapshotFileBeginTime="1425283747045" ... />
//         <SnapshotFile SnapshotFileBeginTime="1425283748045" ... />
//     </DeviceInfo>
// </SnapshotFileList>

#include "snapshot/SnapshotFileListExXml.h"

#include "core/Frame.h"
#include "snapshot/SnapshotFileExXml.h"
#include "snapshot/SnapshotSteps.h"

#include <map>
#include <utility>

SnapshotFileListExXml::SnapshotFileListExXml() = default;

SnapshotFileListExXml::~SnapshotFileListExXml() = default;

void SnapshotFileListExXml::createXmlNode()
{
    // The caller may have emptied the document since.
    if (!frame::holdsGroup(document_, last_.node)) last_ = Group();
    writeElement(document_, files_, last_);
}

bool SnapshotFileListExXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SnapshotFileListExXml::parseXmlString()
{
    return frame::parseRoot(text_, "SnapshotFileList", document_, node_) && parseXmlNode();
}

bool SnapshotFileListExXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, files_);
}

TiXmlElement& SnapshotFileListExXml::writeElement(TiXmlNode& parent, const std::vector<SnapshotFileEx>& files)
{
    Group last;
    return writeElement(parent, files, last);
}

bool SnapshotFileListExXml::readElement(const TiXmlElement& element, std::vector<SnapshotFileEx>& files)
{
    files.clear();

    const TiXmlElement* group = frame::firstItem(element, "DeviceInfo");
    for (; group != nullptr; group = group->NextSiblingElement())
        readGroup(*group, files);
    return true;
}

TiXmlNode* SnapshotFileListExXml::createDeviceInfoXmlNode(TiXmlNode* list, const SnapshotFileEx& file) const
{
    if (list == nullptr) return nullptr;
    return &frame::appendGroup(*list, file.getDeviceId(), file.getDeviceIP(), file.getCameraId());
}

bool SnapshotFileListExXml::findNode(TiXmlNode* list, const std::string& deviceId, int cameraId, TiXmlNode* /*group*/)
{
    TiXmlElement* group = list != nullptr ? frame::groupOf(*list, deviceId, cameraId) : nullptr;
    if (group == nullptr) return false;
    last_ = {deviceId, cameraId, group};
    return true;
}

bool SnapshotFileListExXml::parserDeviceInfoNode(TiXmlNode* node, std::vector<SnapshotFileEx>& files) const
{
    const TiXmlElement* group = frame::elementOf(node);
    if (group == nullptr) return false;
    readGroup(*group, files);
    return true;
}

TiXmlElement& SnapshotFileListExXml::writeElement(TiXmlNode& parent, const std::vector<SnapshotFileEx>& files,
                                                  Group& last)
{
    TiXmlElement& element = frame::appendElement(parent, "SnapshotFileList");
    // An index: to search the list for each group anew would take the square of their number.
    std::map<std::pair<std::string, int>, TiXmlNode*> groups;
    for (const SnapshotFileEx& file : files)
    {
        if (last.node == nullptr || file.getDeviceId() != last.deviceId || file.getCameraId() != last.cameraId)
        {
            TiXmlNode*& group = groups[std::make_pair(file.getDeviceId(), file.getCameraId())];
            if (group == nullptr)
                group = &frame::appendGroup(element, file.getDeviceId(), file.getDeviceIP(), file.getCameraId());
            last = {file.getDeviceId(), file.getCameraId(), group};
        }
        SnapshotFileExXml::writeElement(*last.node, file);
    }
    return element;
}

void SnapshotFileListExXml::readGroup(const TiXmlElement& group, std::vector<SnapshotFileEx>& files)
{
    SnapshotFileEx common;
    common.setDeviceId(frame::textOf(group, "deviceId", ""));
    common.setDeviceIP(frame::textOf(group, "deviceIp", ""));
    common.setCameraId(frame::intOf(group, "CameraId", 0));

    const TiXmlElement* item = frame::firstItem(group, "SnapshotFile");
    for (; item != nullptr; item = item->NextSiblingElement("SnapshotFile"))
    {
        SnapshotFileEx file = common;
        SnapshotFileExXml::readElement(*item, file);
        files.push_back(std::move(file));
    }
}
