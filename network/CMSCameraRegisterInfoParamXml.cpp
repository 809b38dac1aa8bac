// <CameraRegisterInfoParamList>
//     <CameraRegisterInfoParam CameraID="3" CameraRegisterID="R-17-3" />
// </CameraRegisterInfoParamList>
//
// These names lack the "CMS" that the same elements have inside a "CMSRegisterParam".

#include "network/CMSCameraRegisterInfoParamXml.h"

#include "core/Frame.h"

#include <utility>

CMSCameraRegisterInfoParamXml::CMSCameraRegisterInfoParamXml() = default;

CMSCameraRegisterInfoParamXml::~CMSCameraRegisterInfoParamXml() = default;

void CMSCameraRegisterInfoParamXml::createXmlNode()
{
    writeElement(document_, infos_);
}

bool CMSCameraRegisterInfoParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool CMSCameraRegisterInfoParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "CameraRegisterInfoParamList", document_, node_) && parseXmlNode();
}

bool CMSCameraRegisterInfoParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, infos_);
}

TiXmlElement& CMSCameraRegisterInfoParamXml::writeElement(TiXmlNode& parent,
                                                          const std::vector<CMSCameraRegisterInfoParam>& infos)
{
    TiXmlElement& element = frame::appendElement(parent, "CameraRegisterInfoParamList");
    for (const CMSCameraRegisterInfoParam& info : infos)
    {
        TiXmlElement& item = frame::appendElement(element, "CameraRegisterInfoParam");
        frame::setInt(item, "CameraID", info.getCameraID());
        frame::setText(item, "CameraRegisterID", info.getCameraRegisterID());
    }
    return element;
}

bool CMSCameraRegisterInfoParamXml::readElement(const TiXmlElement& element,
                                                std::vector<CMSCameraRegisterInfoParam>& infos)
{
    const TiXmlElement* item = frame::firstItem(element, "CameraRegisterInfoParam");
    for (; item != nullptr; item = item->NextSiblingElement("CameraRegisterInfoParam"))
    {
        CMSCameraRegisterInfoParam info;
        info.setCameraID(frame::intOf(*item, "CameraID", 0));
        info.setCameraRegisterID(frame::textOf(*item, "CameraRegisterID", ""));
        infos.push_back(std::move(info));
    }
    return true;
}

bool CMSCameraRegisterInfoParamXml::createDomainXmlNode(const CMSCameraRegisterInfoParam& info,
                                                        SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("CameraID", info.getCameraID());
    node->setProperty("CameraRegisterID", info.getCameraRegisterID());
    return true;
}

bool CMSCameraRegisterInfoParamXml::createDomainXmlNode(const std::vector<CMSCameraRegisterInfoParam>& infos,
                                                        SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const CMSCameraRegisterInfoParam& info : infos)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "CameraRegisterInfoParam");
        if (!createDomainXmlNode(info, item)) return false;
    }
    return true;
}

bool CMSCameraRegisterInfoParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                       CMSCameraRegisterInfoParam& info) const
{
    if (!node) return false;

    info.setCameraID(frame::intProperty(node, "CameraID", 0,
                                        "CMSCameraRegisterInfoParamXml::parseDomainXmlNode get CameraID failed "));
    info.setCameraRegisterID(
        frame::textProperty(node, "CameraRegisterID", "",
                            "CMSCameraRegisterInfoParamXml::parseDomainXmlNode get CameraRegisterID failed "));
    return true;
}

bool CMSCameraRegisterInfoParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                       std::vector<CMSCameraRegisterInfoParam>& infos) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        CMSCameraRegisterInfoParam info;
        if (!parseDomainXmlNode(frame::nodeOf(*item), info)) return false;
        infos.push_back(std::move(info));
    }
    return true;
}

bool CMSCameraRegisterInfoParamXml::createXmlString(const CMSCameraRegisterInfoParam& info, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("CameraRegisterInfoParam");
    return createDomainXmlNode(info, node) && DomainXmlNode::toString(node, text);
}

bool CMSCameraRegisterInfoParamXml::createXmlString(const std::vector<CMSCameraRegisterInfoParam>& infos,
                                                    std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("CameraRegisterInfoParamList");
    return createDomainXmlNode(infos, node) && DomainXmlNode::toString(node, text);
}

bool CMSCameraRegisterInfoParamXml::parseXmlString(const std::string& text, CMSCameraRegisterInfoParam& info) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "CameraRegisterInfoParam", node) && parseDomainXmlNode(node, info);
}

bool CMSCameraRegisterInfoParamXml::parseXmlString(const std::string& text,
                                                   std::vector<CMSCameraRegisterInfoParam>& infos) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "CameraRegisterInfoParamList", node) && parseDomainXmlNode(node, infos);
}
