// <CMSRegisterInfoParam>
//     <ProtocolConfig ProtocolName="CMS" ProtocolVersion="2.0" />
//     <DeviceState state="online" />
//     <CMSRegisterServerList>
//         <CMSRegisterServer SrvName="Main" SrvIp="192.0.2.8" SrvPort="7000" />
//     </CMSRegisterServerList>
//     <CMSRegisterInfoDeviceList>
//         <CMSRegisterInfoDevice DeviceRegisterId="R-17" />
//     </CMSRegisterInfoDeviceList>
//     <CMSRegisterInfoCameraList>
//         <CMSRegisterInfoCamera CameraId="3" CameraRegisterId="R-17-3" />
//     </CMSRegisterInfoCameraList>
//     <CMSExternConfigList>
//         <CMSExternConfig ExternConfigName="Zone" ExternConfigValue="North" />
//     </CMSExternConfigList>
// </CMSRegisterInfoParam>
//
// The peers spell "Id" here, where the first generation spells "ID".

#include "network/CMSRegisterInfoParamXml.h"

#include "core/Frame.h"

#include <utility>

CMSRegisterInfoParamXml::CMSRegisterInfoParamXml() = default;

CMSRegisterInfoParamXml::~CMSRegisterInfoParamXml() = default;

bool CMSRegisterInfoParamXml::createXmlString(const CMSRegisterInfoParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> root = frame::makeNode("CMSRegisterInfoParam");

    SafePointer<DomainXmlNode> protocol = frame::appendNode(root, "ProtocolConfig");
    protocol->setProperty("ProtocolName", param.getProtocolName());
    protocol->setProperty("ProtocolVersion", param.getProtocolVersion());
    frame::appendNode(root, "DeviceState")->setProperty("state", param.getDeviceProtocolState());

    return addCMSRegisterServerListNode(param, root) && addCMSRegisterInfoDeviceListNode(param, root) &&
           addCMSRegisterInfoCameraListNode(param, root) && addCMSExternConfigListNode(param, root) &&
           DomainXmlNode::toString(root, text);
}

bool CMSRegisterInfoParamXml::parseXmlString(const std::string& text, CMSRegisterInfoParam& param) const
{
    SafePointer<DomainXmlNode> root;
    if (!DomainXmlNode::parse(text, "CMSRegisterInfoParam", root)) return false;

    SafePointer<DomainXmlNode> protocol;
    if (root->getConfigNode("ProtocolConfig", protocol))
    {
        param.setProtocolName(frame::textProperty(protocol, "ProtocolName", "").c_str());
        param.setProtocolVersion(frame::textProperty(protocol, "ProtocolVersion", "").c_str());
    }
    SafePointer<DomainXmlNode> state;
    if (root->getConfigNode("DeviceState", state))
        param.setDeviceProtocolState(frame::textProperty(state, "state", "").c_str());

    // No list is required.
    getCMSRegisterServerParam(param, root);
    getCMSRegisterInfoDeviceParam(param, root);
    getCMSRegisterInfoCameraParam(param, root);
    getCMSExternConfigParam(param, root);
    return true;
}

bool CMSRegisterInfoParamXml::addCMSRegisterServerListNode(const CMSRegisterInfoParam& param,
                                                           SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "CMSRegisterServerList");
    for (const CMSRegisterServerParamV2& server : param.getCMSRegisterServerParam())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "CMSRegisterServer");
        item->setProperty("SrvName", server.getRegisterSrvName());
        item->setProperty("SrvIp", server.getRegisterSrvIP());
        item->setProperty("SrvPort", server.getRegisterSrvPort());
    }
    return true;
}

bool CMSRegisterInfoParamXml::addCMSRegisterInfoDeviceListNode(const CMSRegisterInfoParam& param,
                                                               SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "CMSRegisterInfoDeviceList");
    for (const CMSDeviceRegisterInfoParam& device : param.getCMSDeviceRegisterInfoParam())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "CMSRegisterInfoDevice");
        item->setProperty("DeviceRegisterId", device.getDeviceRegisterID());
    }
    return true;
}

bool CMSRegisterInfoParamXml::addCMSRegisterInfoCameraListNode(const CMSRegisterInfoParam& param,
                                                               SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "CMSRegisterInfoCameraList");
    for (const CMSCameraRegisterInfoParam& camera : param.getCMSCameraRegisterInfoParam())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "CMSRegisterInfoCamera");
        item->setProperty("CameraId", camera.getCameraID());
        item->setProperty("CameraRegisterId", camera.getCameraRegisterID());
    }
    return true;
}

bool CMSRegisterInfoParamXml::addCMSExternConfigListNode(const CMSRegisterInfoParam& param,
                                                         SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> list = frame::appendNode(node, "CMSExternConfigList");
    for (const CMSExternConfigParamV2& config : param.getCMSExternConfigParam())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "CMSExternConfig");
        item->setProperty("ExternConfigName", config.getExternConfigName());
        item->setProperty("ExternConfigValue", config.getExternConfigValue());
    }
    return true;
}

bool CMSRegisterInfoParamXml::getCMSRegisterServerParam(CMSRegisterInfoParam& param,
                                                        SafePointer<DomainXmlNode>& node) const
{
    SafePointer<DomainXmlNode> list;
    if (!node || !node->getConfigNode("CMSRegisterServerList", list)) return false;

    std::vector<CMSRegisterServerParamV2> servers;
    const TiXmlElement* item = frame::firstItem(*list->getXmlNode(), "CMSRegisterServer");
    for (; item != nullptr; item = item->NextSiblingElement("CMSRegisterServer"))
    {
        CMSRegisterServerParamV2 server;
        server.setRegisterSrvName(frame::textOf(*item, "SrvName", ""));
        server.setRegisterSrvIP(frame::textOf(*item, "SrvIp", ""));
        server.setRegisterSrvPort(frame::intOf(*item, "SrvPort", 0));
        servers.push_back(std::move(server));
    }
    param.getCMSRegisterServerParam() = std::move(servers);
    return true;
}

bool CMSRegisterInfoParamXml::getCMSRegisterInfoDeviceParam(CMSRegisterInfoParam& param,
                                                            SafePointer<DomainXmlNode>& node) const
{
    SafePointer<DomainXmlNode> list;
    if (!node || !node->getConfigNode("CMSRegisterInfoDeviceList", list)) return false;

    std::vector<CMSDeviceRegisterInfoParam> devices;
    const TiXmlElement* item = frame::firstItem(*list->getXmlNode(), "CMSRegisterInfoDevice");
    for (; item != nullptr; item = item->NextSiblingElement("CMSRegisterInfoDevice"))
    {
        CMSDeviceRegisterInfoParam device;
        device.setDeviceRegisterID(frame::textOf(*item, "DeviceRegisterId", ""));
        devices.push_back(std::move(device));
    }
    param.getCMSDeviceRegisterInfoParam() = std::move(devices);
    return true;
}

bool CMSRegisterInfoParamXml::getCMSRegisterInfoCameraParam(CMSRegisterInfoParam& param,
                                                            SafePointer<DomainXmlNode>& node) const
{
    SafePointer<DomainXmlNode> list;
    if (!node || !node->getConfigNode("CMSRegisterInfoCameraList", list)) return false;

    std::vector<CMSCameraRegisterInfoParam> cameras;
    const TiXmlElement* item = frame::firstItem(*list->getXmlNode(), "CMSRegisterInfoCamera");
    for (; item != nullptr; item = item->NextSiblingElement("CMSRegisterInfoCamera"))
    {
        CMSCameraRegisterInfoParam camera;
        camera.setCameraID(frame::intOf(*item, "CameraId", 0));
        camera.setCameraRegisterID(frame::textOf(*item, "CameraRegisterId", ""));
        cameras.push_back(std::move(camera));
    }
    param.getCMSCameraRegisterInfoParam() = std::move(cameras);
    return true;
}

bool CMSRegisterInfoParamXml::getCMSExternConfigParam(CMSRegisterInfoParam& param,
                                                      SafePointer<DomainXmlNode>& node) const
{
    SafePointer<DomainXmlNode> list;
    if (!node || !node->getConfigNode("CMSExternConfigList", list)) return false;

    std::vector<CMSExternConfigParamV2> configs;
    const TiXmlElement* item = frame::firstItem(*list->getXmlNode(), "CMSExternConfig");
    for (; item != nullptr; item = item->NextSiblingElement("CMSExternConfig"))
    {
        CMSExternConfigParamV2 config;
        config.setExternConfigName(frame::textOf(*item, "ExternConfigName", ""));
        config.setExternConfigValue(frame::textOf(*item, "ExternConfigValue", ""));
        configs.push_back(std::move(config));
    }
    param.getCMSExternConfigParam() = std::move(configs);
    return true;
}
