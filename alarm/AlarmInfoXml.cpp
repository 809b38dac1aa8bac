// <AlarmInfo DeviceId="D1" DeviceType="2" DeviceIp="192.0.2.1">
//     <AlarmData ... />
// </AlarmInfo>

#include "alarm/AlarmInfoXml.h"

#include "alarm/AlarmDataXml.h"
#include "core/Frame.h"

#include <cstdio>
#include <utility>

AlarmInfoXml::AlarmInfoXml() = default;

AlarmInfoXml::~AlarmInfoXml() = default;

void AlarmInfoXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool AlarmInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmInfo", document_, node_) && parseXmlNode();
}

bool AlarmInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& AlarmInfoXml::writeElement(TiXmlNode& parent, const AlarmInfo& info)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmInfo");
    frame::setText(element, "DeviceId", info.getDeviceId());
    frame::setInt(element, "DeviceType", info.getDeviceType());
    frame::setText(element, "DeviceIp", info.getDeviceIp());

    AlarmDataXml::writeElement(element, info.getAlarmData());
    return element;
}

bool AlarmInfoXml::readElement(const TiXmlElement& element, AlarmInfo& info)
{
    info.setDeviceId(frame::textOf(element, "DeviceId", ""));
    info.setDeviceType(frame::intOf(element, "DeviceType", 0));
    info.setDeviceIp(frame::textOf(element, "DeviceIp", ""));

    const TiXmlElement* child = element.FirstChildElement("AlarmData");
    if (child != nullptr)
    {
        AlarmData data;
        if (!AlarmDataXml::readElement(*child, data)) return false;
        info.getAlarmData() = std::move(data);
    }
    return true;
}

bool AlarmInfoXml::createDomainXmlNode(const AlarmInfo& info, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DeviceId", info.getDeviceId());
    node->setProperty("DeviceType", info.getDeviceType());
    node->setProperty("DeviceIp", info.getDeviceIp());

    SafePointer<DomainXmlNode> data = frame::appendNode(node, "AlarmData");
    return AlarmDataXml().createDomainXmlNode(info.getAlarmData(), data);
}

bool AlarmInfoXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmInfo& info) const
{
    if (!node) return false;

    info.setDeviceId(
        frame::textProperty(node, "DeviceId", "", "AlarmInfoXml::parseDomainXmlNode get DeviceId failed "));
    info.setDeviceType(
        frame::intProperty(node, "DeviceType", 0, "AlarmInfoXml::parseDomainXmlNode get DeviceType failed "));
    info.setDeviceIp(
        frame::textProperty(node, "DeviceIp", "", "AlarmInfoXml::parseDomainXmlNode get DeviceIp failed "));

    SafePointer<DomainXmlNode> child;
    if (!node->getConfigNode("AlarmData", child))
        std::puts("AlarmInfoXml::parseDomainXmlNode get AlarmDataNode failed ");
    AlarmData data;
    if (!AlarmDataXml().parseDomainXmlNode(child, data))
        std::puts("AlarmInfoXml::parseDomainXmlNode parse AlarmDataNode failed ");
    info.getAlarmData() = std::move(data);
    return true;
}

bool AlarmInfoXml::createXmlString(const AlarmInfo& info, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmInfo");
    return createDomainXmlNode(info, node) && DomainXmlNode::toString(node, text);
}

bool AlarmInfoXml::parseXmlString(const std::string& text, AlarmInfo& info) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmInfo", node) && parseDomainXmlNode(node, info);
}
