// <CameraDeviceList>
//     <CameraDevice CameraId="1" CameraName="North" CameraModel="M1" VideoSystem="1" />
// </CameraDeviceList>

#include "device/CameraDeviceXml.h"

#include "core/Frame.h"

#include <utility>

CameraDeviceXml::CameraDeviceXml() = default;

CameraDeviceXml::~CameraDeviceXml() = default;

void CameraDeviceXml::createXmlNode()
{
    writeElement(document_, camera_);
}

bool CameraDeviceXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool CameraDeviceXml::parseXmlString()
{
    return frame::parseRoot(text_, "CameraDevice", document_, node_) && parseXmlNode();
}

bool CameraDeviceXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, camera_);
}

TiXmlElement& CameraDeviceXml::writeElement(TiXmlNode& parent, const CameraDevice& camera)
{
    TiXmlElement& element = frame::appendElement(parent, "CameraDevice");
    frame::setInt(element, "CameraId", camera.getCameraId());
    frame::setText(element, "CameraName", camera.getCameraName());
    frame::setText(element, "CameraModel", camera.getCameraModel());
    frame::setInt(element, "VideoSystem", camera.getVideoSystem());
    return element;
}

bool CameraDeviceXml::readElement(const TiXmlElement& element, CameraDevice& camera)
{
    camera.setCameraId(frame::intOf(element, "CameraId", 0));
    camera.setCameraName(frame::textOf(element, "CameraName", ""));
    camera.setCameraModel(frame::textOf(element, "CameraModel", ""));
    camera.setVideoSystem(frame::intOf(element, "VideoSystem", 0));
    return true;
}

bool CameraDeviceXml::createDomainXmlNode(const CameraDevice& camera, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("CameraId", camera.getCameraId());
    node->setProperty("CameraName", camera.getCameraName());
    node->setProperty("CameraModel", camera.getCameraModel());
    node->setProperty("VideoSystem", camera.getVideoSystem());
    return true;
}

bool CameraDeviceXml::createDomainXmlNode(const std::vector<CameraDevice>& cameras,
                                          SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const CameraDevice& camera : cameras)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "CameraDevice");
        if (!createDomainXmlNode(camera, item)) return false;
    }
    return true;
}

bool CameraDeviceXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CameraDevice& camera) const
{
    if (!node) return false;

    camera.setCameraId(frame::intProperty(node, "CameraId", 0));
    camera.setCameraName(frame::textProperty(node, "CameraName", ""));
    camera.setCameraModel(frame::textProperty(node, "CameraModel", ""));
    camera.setVideoSystem(frame::intProperty(node, "VideoSystem", 0));
    return true;
}

bool CameraDeviceXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                         std::vector<CameraDevice>& cameras) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        CameraDevice camera;
        if (!parseDomainXmlNode(frame::nodeOf(*item), camera)) return false;
        cameras.push_back(std::move(camera));
    }
    return true;
}

bool CameraDeviceXml::createXmlString(const CameraDevice& camera, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("CameraDevice");
    return createDomainXmlNode(camera, node) && DomainXmlNode::toString(node, text);
}

bool CameraDeviceXml::createXmlString(const std::vector<CameraDevice>& cameras, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("CameraDeviceList");
    return createDomainXmlNode(cameras, node) && DomainXmlNode::toString(node, text);
}

bool CameraDeviceXml::parseXmlString(const std::string& text, CameraDevice& camera) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "CameraDevice", node) && parseDomainXmlNode(node, camera);
}

bool CameraDeviceXml::parseXmlString(const std::string& text, std::vector<CameraDevice>& cameras) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "CameraDeviceList", node) && parseDomainXmlNode(node, cameras);
}
