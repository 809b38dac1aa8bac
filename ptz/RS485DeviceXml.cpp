// <RS485Device ComId="1" ComName="Dome bus" BaudRate="9600" DataBits="8" StopBits="1" Parity="0" FlowControl="0" />

#include "ptz/RS485DeviceXml.h"

#include "core/Frame.h"

#include <utility>

RS485DeviceXml::RS485DeviceXml() = default;

RS485DeviceXml::~RS485DeviceXml() = default;

void RS485DeviceXml::createXmlNode()
{
    writeElement(document_, port_);
}

bool RS485DeviceXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RS485DeviceXml::parseXmlString()
{
    return frame::parseRoot(text_, "RS485Device", document_, node_) && parseXmlNode();
}

bool RS485DeviceXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, port_);
}

TiXmlElement& RS485DeviceXml::writeElement(TiXmlNode& parent, const RS485Device& port)
{
    TiXmlElement& element = frame::appendElement(parent, "RS485Device");
    frame::setInt(element, "ComId", port.getComId());
    frame::setText(element, "ComName", port.getComName());
    frame::setInt(element, "BaudRate", port.getBaudRate());
    frame::setInt(element, "DataBits", port.getDataBits());
    frame::setInt(element, "StopBits", port.getStopBits());
    frame::setInt(element, "Parity", port.getParity());
    frame::setInt(element, "FlowControl", port.getFlowControl());
    return element;
}

bool RS485DeviceXml::readElement(const TiXmlElement& element, RS485Device& port)
{
    port.setComId(frame::intOf(element, "ComId", port.getComId()));
    port.setComName(frame::textOf(element, "ComName", port.getComName()));
    port.setBaudRate(frame::intOf(element, "BaudRate", port.getBaudRate()));
    port.setDataBits(frame::intOf(element, "DataBits", port.getDataBits()));
    port.setStopBits(frame::intOf(element, "StopBits", port.getStopBits()));
    port.setParity(frame::intOf(element, "Parity", port.getParity()));
    port.setFlowControl(frame::intOf(element, "FlowControl", port.getFlowControl()));
    return true;
}

bool RS485DeviceXml::createDomainXmlNode(const RS485Device& port, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("ComId", port.getComId());
    node->setProperty("ComName", port.getComName());
    node->setProperty("BaudRate", port.getBaudRate());
    node->setProperty("DataBits", port.getDataBits());
    node->setProperty("StopBits", port.getStopBits());
    node->setProperty("Parity", port.getParity());
    node->setProperty("FlowControl", port.getFlowControl());
    return true;
}

bool RS485DeviceXml::createDomainXmlNode(const std::vector<RS485Device>& ports, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const RS485Device& port : ports)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "RS485Device");
        if (!createDomainXmlNode(port, item)) return false;
    }
    return true;
}

bool RS485DeviceXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, RS485Device& port) const
{
    if (!node) return false;

    port.setComId(frame::intProperty(node, "ComId", 0));
    port.setComName(frame::textProperty(node, "ComName", ""));
    port.setBaudRate(frame::intProperty(node, "BaudRate", 0));
    port.setDataBits(frame::intProperty(node, "DataBits", 0));
    port.setStopBits(frame::intProperty(node, "StopBits", 0));
    port.setParity(frame::intProperty(node, "Parity", 0));
    port.setFlowControl(frame::intProperty(node, "FlowControl", 0));
    return true;
}

bool RS485DeviceXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<RS485Device>& ports) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        RS485Device port;
        if (!parseDomainXmlNode(frame::nodeOf(*item), port)) return false;
        ports.push_back(std::move(port));
    }
    return true;
}

bool RS485DeviceXml::createXmlString(const RS485Device& port, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("RS485Device");
    return createDomainXmlNode(port, node) && DomainXmlNode::toString(node, text);
}

bool RS485DeviceXml::parseXmlString(const std::string& text, RS485Device& port) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "RS485Device", node) && parseDomainXmlNode(node, port);
}
