// <CameraInfoList>
//     <CameraInfo DeviceId="D-4" CameraId="5" />
// </CameraInfoList>

#include "device/CameraInfoXml.h"

#include "core/Frame.h"

#include <utility>

bool CameraInfoXml::createDomainXmlNode(const CameraInfo& camera, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DeviceId", camera.getDeviceId());
    node->setProperty("CameraId", camera.getCameraId());
    return true;
}

bool CameraInfoXml::createDomainXmlNode(const std::vector<CameraInfo>& cameras, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const CameraInfo& camera : cameras)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "CameraInfo");
        if (!createDomainXmlNode(camera, item)) return false;
    }
    return true;
}

bool CameraInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CameraInfo& camera) const
{
    if (!node) return false;

    camera.setDeviceId(frame::textProperty(node, "DeviceId", ""));
    camera.setCameraId(frame::intProperty(node, "CameraId", 0));
    return true;
}

bool CameraInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<CameraInfo>& cameras) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        CameraInfo camera;
        if (!parseDomainXmlNode(frame::nodeOf(*item), camera)) return false;
        cameras.push_back(std::move(camera));
    }
    return true;
}

bool CameraInfoXml::createXmlString(const CameraInfo& camera, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("CameraInfo");
    return createDomainXmlNode(camera, node) && DomainXmlNode::toString(node, text);
}

bool CameraInfoXml::createXmlString(const std::vector<CameraInfo>& cameras, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("CameraInfoList");
    return createDomainXmlNode(cameras, node) && DomainXmlNode::toString(node, text);
}

bool CameraInfoXml::parseXmlString(const std::string& text, CameraInfo& camera) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "CameraInfo", node) && parseDomainXmlNode(node, camera);
}

bool CameraInfoXml::parseXmlString(const std::string& text, std::vector<CameraInfo>& cameras) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "CameraInfoList", node) && parseDomainXmlNode(node, cameras);
}
