// <AlarmServiceParam AlarmCenterEnableFlag="true" AlarmCenterServerIP="192.0.2.1" AlarmCenterServerPort="9000"
//                    AlarmEmailEnableFlag="true" AlarmEmailAddress="guard@example.org" IPProtoVer="4" />

#include "alarm/AlarmServiceParamXml.h"

#include "core/Frame.h"

AlarmServiceParamXml::AlarmServiceParamXml() = default;

AlarmServiceParamXml::~AlarmServiceParamXml() = default;

void AlarmServiceParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool AlarmServiceParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmServiceParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmServiceParam", document_, node_) && parseXmlNode();
}

bool AlarmServiceParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& AlarmServiceParamXml::writeElement(TiXmlNode& parent, const AlarmServiceParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmServiceParam");
    frame::setFlag(element, "AlarmCenterEnableFlag", param.getAlarmCenterEnableFlag());
    frame::setText(element, "AlarmCenterServerIP", param.getAlarmCenterServerIP());
    frame::setInt(element, "AlarmCenterServerPort", param.getAlarmCenterServerPort());
    frame::setFlag(element, "AlarmEmailEnableFlag", param.getAlarmEmailEnableFlag());
    frame::setText(element, "AlarmEmailAddress", param.getAlarmEmailAddress());
    frame::setInt(element, "IPProtoVer", param.getIPProtoVer());
    return element;
}

bool AlarmServiceParamXml::readElement(const TiXmlElement& element, AlarmServiceParam& param)
{
    param.setAlarmCenterEnableFlag(frame::flagOf(element, "AlarmCenterEnableFlag", false));
    param.setAlarmCenterServerIP(frame::textOf(element, "AlarmCenterServerIP", ""));
    param.setAlarmCenterServerPort(frame::uint16Of(element, "AlarmCenterServerPort", 0));
    param.setAlarmEmailEnableFlag(frame::flagOf(element, "AlarmEmailEnableFlag", false));
    param.setAlarmEmailAddress(frame::textOf(element, "AlarmEmailAddress", ""));
    param.setIPProtoVer(frame::intOf(element, "IPProtoVer", 0));
    return true;
}

bool AlarmServiceParamXml::createDomainXmlNode(const AlarmServiceParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("AlarmCenterEnableFlag", param.getAlarmCenterEnableFlag());
    node->setProperty("AlarmCenterServerIP", param.getAlarmCenterServerIP());
    node->setProperty("AlarmCenterServerPort", param.getAlarmCenterServerPort());
    node->setProperty("AlarmEmailEnableFlag", param.getAlarmEmailEnableFlag());
    node->setProperty("AlarmEmailAddress", param.getAlarmEmailAddress());
    node->setProperty("IPProtoVer", param.getIPProtoVer());
    return true;
}

bool AlarmServiceParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmServiceParam& param) const
{
    if (!node) return false;

    param.setAlarmCenterEnableFlag(
        frame::flagProperty(node, "AlarmCenterEnableFlag", false,
                            "AlarmServiceParamXml::parseDomainXmlNode get AlarmCenterEnableFlag failed "));
    param.setAlarmCenterServerIP(frame::textProperty(
        node, "AlarmCenterServerIP", "", "AlarmServiceParamXml::parseDomainXmlNode get AlarmCenterServerIP failed "));
    param.setAlarmCenterServerPort(
        frame::uint16Property(node, "AlarmCenterServerPort", 0,
                              "AlarmServiceParamXml::parseDomainXmlNode get AlarmCenterServerPort failed "));
    param.setAlarmEmailEnableFlag(
        frame::flagProperty(node, "AlarmEmailEnableFlag", false,
                            "AlarmServiceParamXml::parseDomainXmlNode get AlarmEmailEnableFlag failed "));
    param.setAlarmEmailAddress(frame::textProperty(
        node, "AlarmEmailAddress", "", "AlarmServiceParamXml::parseDomainXmlNode get AlarmEmailAddress failed "));
    param.setIPProtoVer(
        frame::intProperty(node, "IPProtoVer", 0, "AlarmServiceParamXml::parseDomainXmlNode get IPProtoVer failed "));
    return true;
}

bool AlarmServiceParamXml::createXmlString(const AlarmServiceParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmServiceParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool AlarmServiceParamXml::parseXmlString(const std::string& text, AlarmServiceParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmServiceParam", node) && parseDomainXmlNode(node, param);
}
