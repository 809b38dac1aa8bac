// <DeviceNodeInfoList>
//     <DeviceNodeInfo DomainName="video" DomainNode="node7" DeviceNodeFilePath="/cfg/node7" />
// </DeviceNodeInfoList>
//
// The lines name the manager of the node files, to whose log they belong on a device.

#include "device/DeviceNodeInfoXml.h"

#include "core/Frame.h"

#include <utility>

DeviceNodeInfoXml::DeviceNodeInfoXml() = default;

DeviceNodeInfoXml::~DeviceNodeInfoXml() = default;

// Only the devices know their nodes; nobody tells them.
bool DeviceNodeInfoXml::createDomainXmlNode(const std::vector<DeviceNodeInfo>& /*infos*/,
                                            SafePointer<DomainXmlNode>& /*node*/) const
{
    return false;
}

bool DeviceNodeInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                           std::vector<DeviceNodeInfo>& infos) const
{
    SafePointer<DomainXmlNode> list;
    if (!node || !node->getConfigNode("DeviceNodeInfoList", list)) return false;

    TiXmlElement* item = frame::firstChild(list);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> child = frame::nodeOf(*item);
        DeviceNodeInfo info;
        info.setDomainName(frame::textProperty(
            child, "DomainName", "",
            "DomainNodeFileManagerXml::initDomainNodeFileManager  getProperty strDomainName failed "));
        info.setDomainNode(frame::textProperty(
            child, "DomainNode", "",
            "DomainNodeFileManagerXml::initDomainNodeFileManager  getProperty strDomainNode failed "));
        info.setNodeFilePath(frame::textProperty(child, "DeviceNodeFilePath", ""));
        infos.push_back(std::move(info));
    }
    return true;
}
