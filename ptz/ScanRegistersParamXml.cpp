// <ScanRegistersParam EnableFlag="true" OSDTopX="0" OSDTopY="0" OSDDisplayNum="8">
//     <CameraIdList>
//         <CameraId CameraId="1" />
//     </CameraIdList>
//     <ExternInterface InterfaceType="1">
//         <RS485Device ... />
//     </ExternInterface>
// </ScanRegistersParam>

#include "ptz/ScanRegistersParamXml.h"

#include "core/Frame.h"
#include "ptz/ExternInterfaceXml.h"

#include <cstdio>
#include <utility>

namespace
{

bool findChild(const SafePointer<DomainXmlNode>& node, const char* name, SafePointer<DomainXmlNode>& child)
{
    if (node->getConfigNode(name, child)) return true;

    // The same words for the port: what the peers log does not tell which of the two children is missing.
    std::puts("ScanRegistersParamXml::parseDomainXmlNode node = NODE_CAMERA_ID_LIST failed ");
    return false;
}

// All but the port, which nodes and texts hold in ways of their own.

void writeFields(const ScanRegistersParam& param, SafePointer<DomainXmlNode>& node)
{
    node->setProperty("EnableFlag", param.getEnableFlag());
    node->setProperty("OSDTopX", param.getOSDTopX());
    node->setProperty("OSDTopY", param.getOSDTopY());
    node->setProperty("OSDDisplayNum", param.getDisplayNum());

    SafePointer<DomainXmlNode> cameras = frame::appendNode(node, "CameraIdList");
    for (const int cameraId : param.getOSDCameraList())
        frame::appendNode(cameras, "CameraId")->setProperty("CameraId", cameraId);
}

void readFields(const SafePointer<DomainXmlNode>& node, ScanRegistersParam& param)
{
    param.setEnableFlag(frame::flagProperty(node, "EnableFlag", param.getEnableFlag()));
    param.setOSDTopX(frame::intProperty(node, "OSDTopX", param.getOSDTopX()));
    param.setOSDTopY(frame::intProperty(node, "OSDTopY", param.getOSDTopY()));
    param.setDisplayNum(frame::intProperty(node, "OSDDisplayNum", param.getDisplayNum()));

    SafePointer<DomainXmlNode> cameras;
    if (!findChild(node, "CameraIdList", cameras)) return;

    const TiXmlElement* item = frame::firstChild(cameras);
    for (; item != nullptr; item = item->NextSiblingElement())
        param.getOSDCameraList().push_back(frame::intOf(*item, "CameraId", 0));
}

} // namespace

ScanRegistersParamXml::ScanRegistersParamXml() = default;

ScanRegistersParamXml::~ScanRegistersParamXml() = default;

bool ScanRegistersParamXml::createDomainXmlNode(const ScanRegistersParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    writeFields(param, node);
    SafePointer<DomainXmlNode> child = frame::appendNode(node, "ExternInterface");
    return ExternInterfaceXml().createDomainXmlNode(param.getExternInterface(), child);
}

bool ScanRegistersParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ScanRegistersParam& param) const
{
    if (!node) return false;

    readFields(node, param);
    SafePointer<DomainXmlNode> child;
    if (!findChild(node, "ExternInterface", child)) return true;

    ExternInterface interface;
    ExternInterfaceXml().parseDomainXmlNode(child, interface);
    param.getExternInterface() = std::move(interface);
    return true;
}

bool ScanRegistersParamXml::createXmlString(const ScanRegistersParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ScanRegistersParam");
    writeFields(param, node);
    ExternInterfaceXml::writeElement(*node->getXmlNode(), param.getExternInterface());
    return DomainXmlNode::toString(node, text);
}

bool ScanRegistersParamXml::parseScanRegistersParamXml(const std::string& text, ScanRegistersParam& param) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "ScanRegistersParam", node)) return false;

    readFields(node, param);
    SafePointer<DomainXmlNode> child;
    if (!findChild(node, "ExternInterface", child)) return true;

    ExternInterface interface;
    if (ExternInterfaceXml::readElement(*child->getXmlNode(), interface)) param.setExternInterface(interface);
    return true;
}
