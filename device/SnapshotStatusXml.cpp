// <SnapshotStatusList>
//     <SnapshotStatus CameraId="1" Status="1" />
// </SnapshotStatusList>

#include "device/SnapshotStatusXml.h"

#include "core/Frame.h"

SnapshotStatusXml::SnapshotStatusXml() = default;

SnapshotStatusXml::~SnapshotStatusXml() = default;

void SnapshotStatusXml::createXmlNode()
{
    writeElement(document_, statuses_);
}

bool SnapshotStatusXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SnapshotStatusXml::parseXmlString()
{
    return frame::parseRoot(text_, "SnapshotStatusList", document_, node_) && parseXmlNode();
}

bool SnapshotStatusXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, statuses_);
}

TiXmlElement& SnapshotStatusXml::writeElement(TiXmlNode& parent, const std::vector<SnapshotStatus>& statuses)
{
    TiXmlElement& element = frame::appendElement(parent, "SnapshotStatusList");
    for (const SnapshotStatus& status : statuses)
    {
        TiXmlElement& item = frame::appendElement(element, "SnapshotStatus");
        frame::setInt(item, "CameraId", status.getCameraId());
        frame::setInt(item, "Status", status.getStatus());
    }
    return element;
}

bool SnapshotStatusXml::readElement(const TiXmlElement& element, std::vector<SnapshotStatus>& statuses)
{
    const TiXmlElement* item = frame::firstItem(element, "SnapshotStatus");
    for (; item != nullptr; item = item->NextSiblingElement("SnapshotStatus"))
    {
        SnapshotStatus status;
        status.setCameraId(frame::queriedIntOf(*item, "CameraId", status.getCameraId()));
        status.setStatus(frame::queriedIntOf(*item, "Status", status.getStatus()));
        statuses.push_back(status);
    }
    return true;
}
