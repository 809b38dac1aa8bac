// <DeviceROIInfoParamList>
//     <DeviceROIInfoParam>
//         <CameraInfo DeviceId="D1" CameraId="1" />
//         <ROIInfoParamList>
//             <ROIInfoParam ... />
//         </ROIInfoParamList>
//     </DeviceROIInfoParam>
// </DeviceROIInfoParamList>

#include "media/DeviceROIInfoParamXml.h"

#include "core/Frame.h"
#include "device/CameraInfoXml.h"
#include "media/ROIInfoParamXml.h"

#include <utility>
#include <vector>

DeviceROIInfoParamXml::DeviceROIInfoParamXml() = default;

DeviceROIInfoParamXml::~DeviceROIInfoParamXml() = default;

bool DeviceROIInfoParamXml::createDomainXmlNode(const DeviceROIInfoParam& regions,
                                                SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> camera = frame::appendNode(node, "CameraInfo");
    if (!CameraInfoXml().createDomainXmlNode(regions.getCameraInfo(), camera)) return false;

    const ROIInfoParamXml regionCodec;
    SafePointer<DomainXmlNode> list = frame::appendNode(node, "ROIInfoParamList");
    for (const ROIInfoParam& region : regions.getROIInfoParamList())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "ROIInfoParam");
        if (!regionCodec.createDomainXmlNode(region, item)) return false;
    }
    return true;
}

bool DeviceROIInfoParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                               DeviceROIInfoParam& regions) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> child;
    CameraInfo camera;
    if (node->getConfigNode("CameraInfo", child)) CameraInfoXml().parseDomainXmlNode(child, camera);
    regions.getCameraInfo() = std::move(camera);

    const ROIInfoParamXml regionCodec;
    std::vector<ROIInfoParam> list;
    TiXmlElement* item = node->getConfigNode("ROIInfoParamList", child) ? frame::firstChild(child) : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ROIInfoParam region;
        if (!regionCodec.parseDomainXmlNode(frame::nodeOf(*item), region)) return false;
        list.push_back(std::move(region));
    }
    regions.getROIInfoParamList() = std::move(list);
    return true;
}

bool DeviceROIInfoParamXml::createXmlString(const DeviceROIInfoParam& regions, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DeviceROIInfoParam");
    return createDomainXmlNode(regions, node) && DomainXmlNode::toString(node, text);
}

bool DeviceROIInfoParamXml::createXmlString(const std::vector<DeviceROIInfoParam>& cameras, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("DeviceROIInfoParamList");
    for (const DeviceROIInfoParam& regions : cameras)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "DeviceROIInfoParam");
        if (!createDomainXmlNode(regions, item)) return false;
    }
    return DomainXmlNode::toString(node, text);
}

bool DeviceROIInfoParamXml::parseXmlString(const std::string& text, DeviceROIInfoParam& regions) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "DeviceROIInfoParam", node) && parseDomainXmlNode(node, regions);
}

bool DeviceROIInfoParamXml::parseXmlString(const std::string& text, std::vector<DeviceROIInfoParam>& cameras) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "DeviceROIInfoParamList", node)) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        DeviceROIInfoParam regions;
        if (!parseDomainXmlNode(frame::nodeOf(*item), regions)) return false;
        cameras.push_back(std::move(regions));
    }
    return true;
}
