// <CMSRegisterParam>
//     <CMSDeviceRegisterInfoParam ... />
//     <CMSExternConfigParam ... />
//     <CMSRegisterServerParam ... />
//     <CMSCameraRegisterInfoParamList>
//         <CMSCameraRegisterInfoParam ... />
//     </CMSCameraRegisterInfoParamList>
// </CMSRegisterParam>
//
// Every name here begins with "CMS", also where the child has another one as a document of its own.

#include "network/CMSRegisterParamXml.h"

#include "core/Frame.h"
#include "network/CMSCameraRegisterInfoParamXml.h"
#include "network/CMSDeviceRegisterInfoParamXml.h"
#include "network/CMSExternConfigParamXml.h"
#include "network/CMSRegisterServerParamXml.h"

#include <utility>

CMSRegisterParamXml::CMSRegisterParamXml() = default;

CMSRegisterParamXml::~CMSRegisterParamXml() = default;

bool CMSRegisterParamXml::createDomainXmlNode(const CMSRegisterParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> device = frame::appendNode(node, "CMSDeviceRegisterInfoParam");
    if (!CMSDeviceRegisterInfoParamXml().createDomainXmlNode(param.getCMSDeviceRegisterInfoParam(), device))
        return false;
    SafePointer<DomainXmlNode> config = frame::appendNode(node, "CMSExternConfigParam");
    if (!CMSExternConfigParamXml().createDomainXmlNode(param.getCMSExternConfigParam(), config)) return false;
    SafePointer<DomainXmlNode> server = frame::appendNode(node, "CMSRegisterServerParam");
    if (!CMSRegisterServerParamXml().createDomainXmlNode(param.getCMSRegisterServerParam(), server)) return false;

    SafePointer<DomainXmlNode> cameras = frame::appendNode(node, "CMSCameraRegisterInfoParamList");
    for (const CMSCameraRegisterInfoParam& info : param.getCMSCameraRegisterInfoParamList())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(cameras, "CMSCameraRegisterInfoParam");
        if (!CMSCameraRegisterInfoParamXml().createDomainXmlNode(info, item)) return false;
    }
    return true;
}

bool CMSRegisterParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CMSRegisterParam& param) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> deviceNode;
    if (node->getConfigNode("CMSDeviceRegisterInfoParam", deviceNode))
    {
        CMSDeviceRegisterInfoParam device;
        if (!CMSDeviceRegisterInfoParamXml().parseDomainXmlNode(deviceNode, device)) return false;
        param.getCMSDeviceRegisterInfoParam() = std::move(device);
    }

    SafePointer<DomainXmlNode> configNode;
    if (node->getConfigNode("CMSExternConfigParam", configNode))
    {
        CMSExternConfigParam config;
        if (!CMSExternConfigParamXml().parseDomainXmlNode(configNode, config)) return false;
        param.getCMSExternConfigParam() = std::move(config);
    }

    SafePointer<DomainXmlNode> serverNode;
    if (node->getConfigNode("CMSRegisterServerParam", serverNode))
    {
        CMSRegisterServerParam server;
        if (!CMSRegisterServerParamXml().parseDomainXmlNode(serverNode, server)) return false;
        param.getCMSRegisterServerParam() = std::move(server);
    }

    SafePointer<DomainXmlNode> list;
    if (!node->getConfigNode("CMSCameraRegisterInfoParamList", list)) return false;
    std::vector<CMSCameraRegisterInfoParam> cameras;
    if (!CMSCameraRegisterInfoParamXml().parseDomainXmlNode(list, cameras)) return false;
    param.setCMSCameraRegisterInfoParamList(cameras);
    return true;
}

bool CMSRegisterParamXml::createXmlString(const CMSRegisterParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("CMSRegisterParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool CMSRegisterParamXml::parseXmlString(const std::string& text, CMSRegisterParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "CMSRegisterParam", node) && parseDomainXmlNode(node, param);
}
