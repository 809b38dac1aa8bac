// <CashRegistersParam EnableFlag="true" OSDTopX="0" OSDTopY="0" OSDLanguage="1" Model="2">
//     <CameraList>
//         <CameraId CameraId="1" />
//     </CameraList>
//     <ExternInterface InterfaceType="1">
//         <RS485Device ... />
//     </ExternInterface>
// </CashRegistersParam>

#include "ptz/CashRegistersParamXml.h"

#include "core/Frame.h"
#include "ptz/ExternInterfaceXml.h"

#include <cstdio>
#include <utility>

CashRegistersParamXml::CashRegistersParamXml() = default;

CashRegistersParamXml::~CashRegistersParamXml() = default;

void CashRegistersParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool CashRegistersParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool CashRegistersParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "CashRegistersParam", document_, node_) && parseXmlNode();
}

bool CashRegistersParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& CashRegistersParamXml::writeElement(TiXmlNode& parent, const CashRegistersParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "CashRegistersParam");
    frame::setFlag(element, "EnableFlag", param.getEnableFlag());
    frame::setInt(element, "OSDTopX", param.getOSDTopX());
    frame::setInt(element, "OSDTopY", param.getOSDTopY());
    frame::setInt(element, "OSDLanguage", param.getOSDLanguage());
    frame::setInt(element, "Model", param.getModel());

    TiXmlElement& cameras = frame::appendElement(element, "CameraList");
    for (const int cameraId : param.getOSDCameraList())
        frame::setInt(frame::appendElement(cameras, "CameraId"), "CameraId", cameraId);

    ExternInterfaceXml::writeElement(element, param.getExternInterface());
    return element;
}

bool CashRegistersParamXml::readElement(const TiXmlElement& element, CashRegistersParam& param)
{
    param.setEnableFlag(frame::flagOf(element, "EnableFlag", param.getEnableFlag()));
    param.setOSDTopX(frame::intOf(element, "OSDTopX", param.getOSDTopX()));
    param.setOSDTopY(frame::intOf(element, "OSDTopY", param.getOSDTopY()));
    param.setOSDLanguage(frame::intOf(element, "OSDLanguage", param.getOSDLanguage()));
    param.setModel(frame::intOf(element, "Model", param.getModel()));

    const TiXmlElement* cameras = element.FirstChildElement("CameraList");
    const TiXmlElement* item = cameras != nullptr ? cameras->FirstChildElement() : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        if (frame::attributeOf(*item, "CameraId") == nullptr) continue;
        param.getOSDCameraList().push_back(frame::intOf(*item, "CameraId", 0));
    }

    const TiXmlElement* child = element.FirstChildElement("ExternInterface");
    if (child != nullptr)
    {
        ExternInterface interface;
        if (!ExternInterfaceXml::readElement(*child, interface)) return false;
        param.getExternInterface() = std::move(interface);
    }
    return true;
}

bool CashRegistersParamXml::createDomainXmlNode(const CashRegistersParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("EnableFlag", param.getEnableFlag());
    node->setProperty("OSDTopX", param.getOSDTopX());
    node->setProperty("OSDTopY", param.getOSDTopY());
    node->setProperty("OSDLanguage", param.getOSDLanguage());
    // No "Model": the peers of the node form know none.

    SafePointer<DomainXmlNode> cameras = frame::appendNode(node, "CameraList");
    for (const int cameraId : param.getOSDCameraList())
        frame::appendNode(cameras, "CameraId")->setProperty("CameraId", cameraId);

    SafePointer<DomainXmlNode> child = frame::appendNode(node, "ExternInterface");
    return ExternInterfaceXml().createDomainXmlNode(param.getExternInterface(), child);
}

bool CashRegistersParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CashRegistersParam& param) const
{
    if (!node) return false;

    param.setEnableFlag(frame::flagProperty(node, "EnableFlag", false));
    param.setOSDTopX(frame::intProperty(node, "OSDTopX", 0));
    param.setOSDTopY(frame::intProperty(node, "OSDTopY", 0));
    param.setOSDLanguage(frame::intProperty(node, "OSDLanguage", 0));

    SafePointer<DomainXmlNode> cameras;
    std::vector<int> cameraIds;
    if (node->getConfigNode("CameraList", cameras))
    {
        const TiXmlElement* item = frame::firstChild(cameras);
        for (; item != nullptr; item = item->NextSiblingElement())
            cameraIds.push_back(frame::intOf(*item, "CameraId", 0));
    }
    else
    {
        std::puts("CashRegistersParamXml::parseDomainXmlNode node = NODE_CAMERA_LIST failed ");
    }
    param.getOSDCameraList() = std::move(cameraIds);

    SafePointer<DomainXmlNode> child;
    ExternInterface interface;
    if (!node->getConfigNode("ExternInterface", child))
        std::puts("CashRegistersParamXml::parseDomainXmlNode node = NODE_EXTERN_INTERFACE failed ");
    ExternInterfaceXml().parseDomainXmlNode(child, interface);
    param.getExternInterface() = std::move(interface);
    return true;
}

bool CashRegistersParamXml::createXmlString(const CashRegistersParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("CashRegistersParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool CashRegistersParamXml::parseXmlString(const std::string& text, CashRegistersParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "CashRegistersParam", node) && parseDomainXmlNode(node, param);
}
