// <SnapshotFileList>
//     <DeviceInfo deviceId="D1" deviceIp="192.0.2.1" CameraId="2">
//         <SnapshotFile snapshotFileTime="1425283747045" ... />
//         <SnapshotFile snapshotFileTime="1425283748045" ... />
//     </DeviceInfo>
// </SnapshotFileList>

#include "snapshot/SnapshotFileListXml.h"

#include "core/Frame.h"
#include "snapshot/SnapshotFileXml.h"
#include "snapshot/SnapshotSteps.h"

#include <map>
#include <utility>

SnapshotFileListXml::SnapshotFileListXml() = default;

SnapshotFileListXml::~SnapshotFileListXml() = default;

void SnapshotFileListXml::createXmlNode()
{
    // The caller may have emptied the document since.
    if (!frame::holdsGroup(document_, last_.node)) last_ = Group();
    writeElement(document_, files_, last_);
}

bool SnapshotFileListXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SnapshotFileListXml::parseXmlString()
{
    return frame::parseRoot(text_, "SnapshotFileList", document_, node_) && parseXmlNode();
}

bool SnapshotFileListXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, files_);
}

TiXmlElement& SnapshotFileListXml::writeElement(TiXmlNode& parent, const std::vector<SnapshotFile>& files)
{
    Group last;
    return writeElement(parent, files, last);
}

bool SnapshotFileListXml::readElement(const TiXmlElement& element, std::vector<SnapshotFile>& files)
{
    files.clear();

    const TiXmlElement* group = frame::firstItem(element, "DeviceInfo");
    for (; group != nullptr; group = group->NextSiblingElement())
        readGroup(*group, files);
    return true;
}

TiXmlNode* SnapshotFileListXml::createDeviceInfoXmlNode(TiXmlNode* list, const SnapshotFile& file) const
{
    if (list == nullptr) return nullptr;
    return &frame::appendGroup(*list, file.getDeviceId(), file.getDeviceIP(), file.getCameraId());
}

bool SnapshotFileListXml::findNode(TiXmlNode* list, const std::string& deviceId, int cameraId, TiXmlNode* /*group*/)
{
    TiXmlElement* group = list != nullptr ? frame::groupOf(*list, deviceId, cameraId) : nullptr;
    if (group == nullptr) return false;
    last_ = {deviceId, cameraId, group};
    return true;
}

bool SnapshotFileListXml::parserDeviceInfoNode(TiXmlNode* node, std::vector<SnapshotFile>& files) const
{
    const TiXmlElement* group = frame::elementOf(node);
    if (group == nullptr) return false;
    readGroup(*group, files);
    return true;
}

TiXmlElement& SnapshotFileListXml::writeElement(TiXmlNode& parent, const std::vector<SnapshotFile>& files, Group& last)
{
    TiXmlElement& element = frame::appendElement(parent, "SnapshotFileList");
    // An index: to search the list for each group anew would take the square of their number.
    std::map<std::pair<std::string, int>, TiXmlNode*> groups;
    for (const SnapshotFile& file : files)
    {
        if (last.node == nullptr || file.getDeviceId() != last.deviceId || file.getCameraId() != last.cameraId)
        {
            TiXmlNode*& group = groups[std::make_pair(file.getDeviceId(), file.getCameraId())];
            if (group == nullptr)
                group = &frame::appendGroup(element, file.getDeviceId(), file.getDeviceIP(), file.getCameraId());
            last = {file.getDeviceId(), file.getCameraId(), group};
        }
        SnapshotFileXml::writeElement(*last.node, file);
    }
    return element;
}

void SnapshotFileListXml::readGroup(const TiXmlElement& group, std::vector<SnapshotFile>& files)
{
    SnapshotFile common;
    common.setDeviceId(frame::textOf(group, "deviceId", ""));
    common.setDeviceIP(frame::textOf(group, "deviceIp", ""));
    common.setCameraId(frame::intOf(group, "CameraId", 0));

    const TiXmlElement* item = frame::firstItem(group, "SnapshotFile");
    for (; item != nullptr; item = item->NextSiblingElement("SnapshotFile"))
    {
        SnapshotFile file = common;
        SnapshotFileXml::readElement(*item, file);
        files.push_back(std::move(file));
    }
}
