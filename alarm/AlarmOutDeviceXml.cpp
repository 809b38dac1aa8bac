// <AlarmOutDeviceList>
//     <AlarmOutDevice AlarmOutId="1" AlarmOutName="Siren" AlarmValidSignal="1" AlarmMode="2" AlarmOutFrequency="0.5"
//                     AlarmTime="30" ActivatedStartTime="0" ActivatedEndTime="86400" />
// </AlarmOutDeviceList>

#include "alarm/AlarmOutDeviceXml.h"

#include "core/Conversions.h"
#include "core/Frame.h"

#include <utility>

namespace
{

// Nodes have no properties of this type: it travels as the text that documents carry.
long longProperty(const SafePointer<DomainXmlNode>& node, const char* name, const char* line)
{
    return static_cast<long>(frame::integerIn(frame::textProperty(node, name, "0", line).c_str()));
}

} // namespace

AlarmOutDeviceXml::AlarmOutDeviceXml() = default;

AlarmOutDeviceXml::~AlarmOutDeviceXml() = default;

void AlarmOutDeviceXml::createXmlNode()
{
    writeElement(document_, device_);
}

bool AlarmOutDeviceXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmOutDeviceXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmOutDevice", document_, node_) && parseXmlNode();
}

bool AlarmOutDeviceXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, device_);
}

TiXmlElement& AlarmOutDeviceXml::writeElement(TiXmlNode& parent, const AlarmOutDevice& device)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmOutDevice");
    frame::setInt(element, "AlarmOutId", device.getAlarmOutId());
    frame::setText(element, "AlarmOutName", device.getAlarmOutName());
    frame::setInt(element, "AlarmValidSignal", device.getAlarmValidSignal());
    frame::setInt(element, "AlarmMode", device.getAlarmMode());
    frame::setFloat(element, "AlarmOutFrequency", device.getAlarmOutFrequency());
    frame::setInt(element, "AlarmTime", device.getAlarmTime());
    frame::setInt64(element, "ActivatedStartTime", device.getActivatedStartTime());
    frame::setInt64(element, "ActivatedEndTime", device.getActivatedEndTime());
    return element;
}

bool AlarmOutDeviceXml::readElement(const TiXmlElement& element, AlarmOutDevice& device)
{
    device.setAlarmOutId(frame::intOf(element, "AlarmOutId", 0));
    device.setAlarmOutName(frame::textOf(element, "AlarmOutName", ""));
    device.setAlarmValidSignal(frame::intOf(element, "AlarmValidSignal", 0));
    device.setAlarmMode(frame::intOf(element, "AlarmMode", 0));
    device.setAlarmOutFrequency(frame::floatOf(element, "AlarmOutFrequency", 0.0F));
    device.setAlarmTime(frame::intOf(element, "AlarmTime", 0));
    device.setActivatedStartTime(frame::longOf(element, "ActivatedStartTime", 0));
    device.setActivatedEndTime(frame::longOf(element, "ActivatedEndTime", 0));
    return true;
}

bool AlarmOutDeviceXml::createDomainXmlNode(const AlarmOutDevice& device, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("AlarmOutId", device.getAlarmOutId());
    node->setProperty("AlarmOutName", device.getAlarmOutName());
    node->setProperty("AlarmValidSignal", device.getAlarmValidSignal());
    node->setProperty("AlarmMode", device.getAlarmMode());
    node->setProperty("AlarmOutFrequency", device.getAlarmOutFrequency());
    node->setProperty("AlarmTime", device.getAlarmTime());
    node->setProperty("ActivatedStartTime", frame::integerText(device.getActivatedStartTime()).characters);
    node->setProperty("ActivatedEndTime", frame::integerText(device.getActivatedEndTime()).characters);
    return true;
}

bool AlarmOutDeviceXml::createDomainXmlNode(const std::vector<AlarmOutDevice>& devices,
                                            SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const AlarmOutDevice& device : devices)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "AlarmOutDevice");
        if (!createDomainXmlNode(device, item)) return false;
    }
    return true;
}

bool AlarmOutDeviceXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmOutDevice& device) const
{
    if (!node) return false;

    device.setAlarmOutId(
        frame::intProperty(node, "AlarmOutId", 0, "AlarmOutDeviceXml::parseDomainXmlNode get AlarmOutId failed "));
    device.setAlarmOutName(frame::textProperty(node, "AlarmOutName", "",
                                               "AlarmOutDeviceXml::parseDomainXmlNode get AlarmOutName failed "));
    device.setAlarmValidSignal(frame::intProperty(
        node, "AlarmValidSignal", 0, "AlarmOutDeviceXml::parseDomainXmlNode get AlarmValidSignal failed "));
    device.setAlarmMode(
        frame::intProperty(node, "AlarmMode", 0, "AlarmOutDeviceXml::parseDomainXmlNode get AlarmMode failed "));
    device.setAlarmOutFrequency(frame::floatProperty(
        node, "AlarmOutFrequency", 0.0F, "AlarmOutDeviceXml::parseDomainXmlNode get AlarmOutFrequency failed "));
    device.setAlarmTime(
        frame::intProperty(node, "AlarmTime", 0, "AlarmOutDeviceXml::parseDomainXmlNode get AlarmTime failed "));
    device.setActivatedStartTime(longProperty(node, "ActivatedStartTime",
                                              "AlarmOutDeviceXml::parseDomainXmlNode get ActivatedStartTime failed "));
    device.setActivatedEndTime(
        longProperty(node, "ActivatedEndTime", "AlarmOutDeviceXml::parseDomainXmlNode get ActivatedEndTime failed "));
    return true;
}

bool AlarmOutDeviceXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                           std::vector<AlarmOutDevice>& devices) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmOutDevice device;
        if (!parseDomainXmlNode(frame::nodeOf(*item), device)) return false;
        devices.push_back(std::move(device));
    }
    return true;
}

bool AlarmOutDeviceXml::createXmlString(const AlarmOutDevice& device, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmOutDevice");
    return createDomainXmlNode(device, node) && DomainXmlNode::toString(node, text);
}

bool AlarmOutDeviceXml::createXmlString(const std::vector<AlarmOutDevice>& devices, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmOutDeviceList");
    return createDomainXmlNode(devices, node) && DomainXmlNode::toString(node, text);
}

bool AlarmOutDeviceXml::parseXmlString(const std::string& text, AlarmOutDevice& device) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmOutDevice", node) && parseDomainXmlNode(node, device);
}

bool AlarmOutDeviceXml::parseXmlString(const std::string& text, std::vector<AlarmOutDevice>& devices) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmOutDeviceList", node) && parseDomainXmlNode(node, devices);
}
