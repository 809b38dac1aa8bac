// <PTZKeyboardParam EnableFlag="true">
//     <ExternInterface InterfaceType="1">
//         <RS485Device ... />
//     </ExternInterface>
// </PTZKeyboardParam>

#include "ptz/PTZKeyboardParamXml.h"

#include "core/Frame.h"
#include "ptz/ExternInterfaceXml.h"

#include <cstdio>
#include <utility>

PTZKeyboardParamXml::PTZKeyboardParamXml() = default;

PTZKeyboardParamXml::~PTZKeyboardParamXml() = default;

void PTZKeyboardParamXml::createXmlNode()
{
    writeElement(document_, keyboard_);
}

bool PTZKeyboardParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool PTZKeyboardParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "PTZKeyboardParam", document_, node_) && parseXmlNode();
}

bool PTZKeyboardParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, keyboard_);
}

TiXmlElement& PTZKeyboardParamXml::writeElement(TiXmlNode& parent, const PTZKeyboardParam& keyboard)
{
    TiXmlElement& element = frame::appendElement(parent, "PTZKeyboardParam");
    frame::setFlag(element, "EnableFlag", keyboard.getEnableFlag());

    ExternInterfaceXml::writeElement(element, keyboard.getExternInterface());
    return element;
}

bool PTZKeyboardParamXml::readElement(const TiXmlElement& element, PTZKeyboardParam& keyboard)
{
    keyboard.setEnableFlag(frame::flagOf(element, "EnableFlag", keyboard.getEnableFlag()));

    const TiXmlElement* child = element.FirstChildElement("ExternInterface");
    if (child != nullptr)
    {
        ExternInterface interface;
        if (!ExternInterfaceXml::readElement(*child, interface)) return false;
        keyboard.getExternInterface() = std::move(interface);
    }
    return true;
}

bool PTZKeyboardParamXml::createDomainXmlNode(const PTZKeyboardParam& keyboard, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("EnableFlag", keyboard.getEnableFlag());

    SafePointer<DomainXmlNode> child = frame::appendNode(node, "ExternInterface");
    return ExternInterfaceXml().createDomainXmlNode(keyboard.getExternInterface(), child);
}

bool PTZKeyboardParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PTZKeyboardParam& keyboard) const
{
    if (!node) return false;

    keyboard.setEnableFlag(frame::flagProperty(node, "EnableFlag", false));

    SafePointer<DomainXmlNode> child;
    ExternInterface interface;
    if (!node->getConfigNode("ExternInterface", child))
        std::puts("PTZKeyboardParamXml::parseDomainXmlNode node = NODE_EXTERN_INTERFACE failed ");
    ExternInterfaceXml().parseDomainXmlNode(child, interface);
    keyboard.getExternInterface() = std::move(interface);
    return true;
}

bool PTZKeyboardParamXml::createXmlString(const PTZKeyboardParam& keyboard, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PTZKeyboardParam");
    return createDomainXmlNode(keyboard, node) && DomainXmlNode::toString(node, text);
}

bool PTZKeyboardParamXml::parseXmlString(const std::string& text, PTZKeyboardParam& keyboard) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PTZKeyboardParam", node) && parseDomainXmlNode(node, keyboard);
}
