// <ExternInterface InterfaceType="1">
//     <RS485Device ComId="1" ComName="Dome bus" ... />
// </ExternInterface>

#include "ptz/ExternInterfaceXml.h"

#include "core/Frame.h"
#include "ptz/RS485DeviceXml.h"

#include <cstdio>
#include <utility>

namespace
{

// The only kind of port that has settings of its own.
constexpr int rs485 = 1;

} // namespace

ExternInterfaceXml::ExternInterfaceXml() = default;

ExternInterfaceXml::~ExternInterfaceXml() = default;

void ExternInterfaceXml::createXmlNode()
{
    writeElement(document_, interface_);
}

bool ExternInterfaceXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ExternInterfaceXml::parseXmlString()
{
    return frame::parseRoot(text_, "ExternInterface", document_, node_) && parseXmlNode();
}

bool ExternInterfaceXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, interface_);
}

TiXmlElement& ExternInterfaceXml::writeElement(TiXmlNode& parent, const ExternInterface& interface)
{
    TiXmlElement& element = frame::appendElement(parent, "ExternInterface");
    frame::setInt(element, "InterfaceType", interface.getInterfaceType());
    if (interface.getInterfaceType() == rs485) RS485DeviceXml::writeElement(element, interface.getRS485Device());
    return element;
}

bool ExternInterfaceXml::readElement(const TiXmlElement& element, ExternInterface& interface)
{
    interface.setInterfaceType(frame::intOf(element, "InterfaceType", interface.getInterfaceType()));
    if (interface.getInterfaceType() != rs485) return true;

    const TiXmlElement* child = element.FirstChildElement("RS485Device");
    if (child != nullptr)
    {
        RS485Device port;
        if (!RS485DeviceXml::readElement(*child, port)) return false;
        interface.getRS485Device() = std::move(port);
    }
    return true;
}

bool ExternInterfaceXml::createDomainXmlNode(const ExternInterface& interface, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("InterfaceType", interface.getInterfaceType());

    // Whatever the kind, other than in a document: peers of the node form look for the port without asking for the
    // kind.
    SafePointer<DomainXmlNode> child = frame::appendNode(node, "RS485Device");
    return RS485DeviceXml().createDomainXmlNode(interface.getRS485Device(), child);
}

bool ExternInterfaceXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ExternInterface& interface) const
{
    if (!node) return false;

    interface.setInterfaceType(frame::intProperty(node, "InterfaceType", 0));

    SafePointer<DomainXmlNode> child;
    RS485Device port;
    if (!node->getConfigNode("RS485Device", child))
        std::puts("ExternInterfaceXml::parseDomainXmlNode node = NODE_RS485_DEVICE failed ");
    RS485DeviceXml().parseDomainXmlNode(child, port);
    interface.getRS485Device() = std::move(port);
    return true;
}

bool ExternInterfaceXml::createXmlString(const ExternInterface& interface, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ExternInterface");
    return createDomainXmlNode(interface, node) && DomainXmlNode::toString(node, text);
}

bool ExternInterfaceXml::parseXmlString(const std::string& text, ExternInterface& interface) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ExternInterface", node) && parseDomainXmlNode(node, interface);
}
