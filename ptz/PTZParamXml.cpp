// <PTZParamList>
//     <PTZParam PTZEnableFlag="true" CameraId="1" PTZDeviceId="1" PTZProtocol="0" ComId="1" ... />
// </PTZParamList>

#include "ptz/PTZParamXml.h"

#include "core/Frame.h"

PTZParamXml::PTZParamXml() = default;

PTZParamXml::~PTZParamXml() = default;

void PTZParamXml::createXmlNode()
{
    writeElement(document_, params_);
}

bool PTZParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool PTZParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "PTZParamList", document_, node_) && parseXmlNode();
}

bool PTZParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, params_);
}

TiXmlElement& PTZParamXml::writeElement(TiXmlNode& parent, const std::vector<PTZParam>& params)
{
    TiXmlElement& element = frame::appendElement(parent, "PTZParamList");
    for (const PTZParam& param : params)
    {
        TiXmlElement& item = frame::appendElement(element, "PTZParam");
        frame::setFlag(item, "PTZEnableFlag", param.getPTZEnableFlag());
        frame::setInt(item, "CameraId", param.getCameraId());
        frame::setInt(item, "PTZDeviceId", param.getPTZDeviceId());
        frame::setInt(item, "PTZProtocol", param.getPTZProtocol());
        frame::setInt(item, "ComId", param.getComId());
        frame::setInt(item, "BaudRate", param.getBaudRate());
        frame::setInt(item, "DataBits", param.getDataBits());
        frame::setInt(item, "StopBits", param.getStopBits());
        frame::setInt(item, "Parity", param.getParity());
    }
    return element;
}

bool PTZParamXml::readElement(const TiXmlElement& element, std::vector<PTZParam>& params)
{
    const TiXmlElement* item = frame::firstItem(element, "PTZParam");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        PTZParam param;
        param.setPTZEnableFlag(frame::flagOf(*item, "PTZEnableFlag", param.getPTZEnableFlag()));
        param.setCameraId(frame::intOf(*item, "CameraId", param.getCameraId()));
        param.setPTZDeviceId(frame::intOf(*item, "PTZDeviceId", param.getPTZDeviceId()));
        param.setPTZProtocol(frame::intOf(*item, "PTZProtocol", param.getPTZProtocol()));
        param.setComId(frame::intOf(*item, "ComId", param.getComId()));
        param.setBaudRate(frame::intOf(*item, "BaudRate", param.getBaudRate()));
        param.setDataBits(frame::intOf(*item, "DataBits", param.getDataBits()));
        param.setStopBits(frame::intOf(*item, "StopBits", param.getStopBits()));
        param.setParity(frame::intOf(*item, "Parity", param.getParity()));
        params.push_back(param);
    }
    return true;
}

bool PTZParamXml::createDomainXmlNode(const PTZParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("PTZEnableFlag", param.getPTZEnableFlag());
    node->setProperty("CameraId", param.getCameraId());
    node->setProperty("PTZDeviceId", param.getPTZDeviceId());
    node->setProperty("PTZProtocol", param.getPTZProtocol());
    node->setProperty("ComId", param.getComId());
    node->setProperty("BaudRate", param.getBaudRate());
    node->setProperty("DataBits", param.getDataBits());
    node->setProperty("StopBits", param.getStopBits());
    node->setProperty("Parity", param.getParity());
    return true;
}

bool PTZParamXml::createDomainXmlNode(const std::vector<PTZParam>& params, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const PTZParam& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "PTZParam");
        if (!createDomainXmlNode(param, item)) return false;
    }
    return true;
}

bool PTZParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PTZParam& param) const
{
    if (!node) return false;

    param.setPTZEnableFlag(frame::flagProperty(node, "PTZEnableFlag", false));
    param.setCameraId(frame::intProperty(node, "CameraId", 1));
    param.setPTZDeviceId(frame::intProperty(node, "PTZDeviceId", 1));
    param.setPTZProtocol(frame::intProperty(node, "PTZProtocol", 0));
    param.setComId(frame::intProperty(node, "ComId", 1));
    param.setBaudRate(frame::intProperty(node, "BaudRate", 0));
    param.setDataBits(frame::intProperty(node, "DataBits", 0));
    param.setStopBits(frame::intProperty(node, "StopBits", 0));
    param.setParity(frame::intProperty(node, "Parity", 0));
    return true;
}

bool PTZParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<PTZParam>& params) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        PTZParam param;
        if (!parseDomainXmlNode(frame::nodeOf(*item), param)) return false;
        params.push_back(param);
    }
    return true;
}

bool PTZParamXml::createXmlString(const PTZParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PTZParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool PTZParamXml::createXmlString(const std::vector<PTZParam>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PTZParamList");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

bool PTZParamXml::parseXmlString(const std::string& text, PTZParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PTZParam", node) && parseDomainXmlNode(node, param);
}

bool PTZParamXml::parseXmlString(const std::string& text, std::vector<PTZParam>& params) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PTZParamList", node) && parseDomainXmlNode(node, params);
}
