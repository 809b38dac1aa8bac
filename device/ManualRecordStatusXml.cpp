// <ManualRecordStatusList>
//     <ManualRecordStatus CameraId="1" RecordStatus="1" />
// </ManualRecordStatusList>

#include "device/ManualRecordStatusXml.h"

#include "core/Frame.h"

ManualRecordStatusXml::ManualRecordStatusXml() = default;

ManualRecordStatusXml::~ManualRecordStatusXml() = default;

void ManualRecordStatusXml::createXmlNode()
{
    writeElement(document_, statuses_);
}

bool ManualRecordStatusXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ManualRecordStatusXml::parseXmlString()
{
    return frame::parseRoot(text_, "ManualRecordStatusList", document_, node_) && parseXmlNode();
}

bool ManualRecordStatusXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, statuses_);
}

TiXmlElement& ManualRecordStatusXml::writeElement(TiXmlNode& parent, const std::vector<ManualRecordStatus>& statuses)
{
    TiXmlElement& element = frame::appendElement(parent, "ManualRecordStatusList");
    for (const ManualRecordStatus& status : statuses)
    {
        TiXmlElement& item = frame::appendElement(element, "ManualRecordStatus");
        frame::setInt(item, "CameraId", status.getCameraId());
        frame::setInt(item, "RecordStatus", status.getRecordStatus());
    }
    return element;
}

bool ManualRecordStatusXml::readElement(const TiXmlElement& element, std::vector<ManualRecordStatus>& statuses)
{
    const TiXmlElement* item = frame::firstItem(element, "ManualRecordStatus");
    for (; item != nullptr; item = item->NextSiblingElement("ManualRecordStatus"))
    {
        ManualRecordStatus status;
        status.setCameraId(frame::queriedIntOf(*item, "CameraId", status.getCameraId()));
        status.setRecordStatus(
            static_cast<std::uint8_t>(frame::queriedIntOf(*item, "RecordStatus", status.getRecordStatus())));
        statuses.push_back(status);
    }
    return true;
}
