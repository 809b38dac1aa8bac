// <DeviceBaseInfoList>
//     <DeviceBaseInfo ... />
// </DeviceBaseInfoList>

#include "device/DeviceBaseInfoListXml.h"

#include "core/Frame.h"
#include "device/DeviceBaseInfoXml.h"

#include <utility>

DeviceBaseInfoListXml::DeviceBaseInfoListXml() = default;

DeviceBaseInfoListXml::~DeviceBaseInfoListXml() = default;

void DeviceBaseInfoListXml::createXmlNode()
{
    writeElement(document_, infos_);
}

bool DeviceBaseInfoListXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DeviceBaseInfoListXml::parseXmlString()
{
    return frame::parseRoot(text_, "DeviceBaseInfoList", document_, node_) && parseXmlNode();
}

bool DeviceBaseInfoListXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, infos_);
}

TiXmlElement& DeviceBaseInfoListXml::writeElement(TiXmlNode& parent, const std::vector<DeviceBaseInfo>& infos)
{
    TiXmlElement& element = frame::appendElement(parent, "DeviceBaseInfoList");
    for (const DeviceBaseInfo& info : infos)
        DeviceBaseInfoXml::writeElement(element, info);
    return element;
}

bool DeviceBaseInfoListXml::readElement(const TiXmlElement& element, std::vector<DeviceBaseInfo>& infos)
{
    const TiXmlElement* item = frame::firstItem(element, "DeviceBaseInfo");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        DeviceBaseInfo info;
        if (!DeviceBaseInfoXml::readElement(*item, info)) return false;
        infos.push_back(std::move(info));
    }
    return true;
}
