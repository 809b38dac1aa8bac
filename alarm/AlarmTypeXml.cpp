// <AlarmTypeList>
//     <AlarmType AlarmTypeId="1" AlarmTypeName="Motion" />
// </AlarmTypeList>

#include "alarm/AlarmTypeXml.h"

#include "core/Frame.h"

#include <utility>

AlarmTypeXml::AlarmTypeXml() = default;

AlarmTypeXml::~AlarmTypeXml() = default;

void AlarmTypeXml::createXmlNode()
{
    writeElement(document_, type_);
}

bool AlarmTypeXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmTypeXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmType", document_, node_) && parseXmlNode();
}

bool AlarmTypeXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, type_);
}

TiXmlElement& AlarmTypeXml::writeElement(TiXmlNode& parent, const AlarmType& type)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmType");
    frame::setInt(element, "AlarmTypeId", type.getAlarmTypeId());
    frame::setText(element, "AlarmTypeName", type.getAlarmTypeName());
    return element;
}

bool AlarmTypeXml::readElement(const TiXmlElement& element, AlarmType& type)
{
    type.setAlarmTypeId(frame::intOf(element, "AlarmTypeId", 0));
    type.setAlarmTypeName(frame::textOf(element, "AlarmTypeName", ""));
    return true;
}

bool AlarmTypeXml::createDomainXmlNode(const AlarmType& type, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("AlarmTypeId", type.getAlarmTypeId());
    node->setProperty("AlarmTypeName", type.getAlarmTypeName());
    return true;
}

bool AlarmTypeXml::createDomainXmlNode(const std::vector<AlarmType>& types, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const AlarmType& type : types)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "AlarmType");
        if (!createDomainXmlNode(type, item)) return false;
    }
    return true;
}

bool AlarmTypeXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmType& type) const
{
    if (!node) return false;

    type.setAlarmTypeId(
        frame::intProperty(node, "AlarmTypeId", 0, "AlarmTypeXml::parseDomainXmlNode get AlarmTypeId failed "));
    type.setAlarmTypeName(
        frame::textProperty(node, "AlarmTypeName", "", "AlarmTypeXml::parseDomainXmlNode get AlarmTypeName failed "));
    return true;
}

bool AlarmTypeXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<AlarmType>& types) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AlarmType type;
        if (!parseDomainXmlNode(frame::nodeOf(*item), type)) return false;
        types.push_back(std::move(type));
    }
    return true;
}

bool AlarmTypeXml::createXmlString(const AlarmType& type, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmType");
    return createDomainXmlNode(type, node) && DomainXmlNode::toString(node, text);
}

bool AlarmTypeXml::createXmlString(const std::vector<AlarmType>& types, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmTypeList");
    return createDomainXmlNode(types, node) && DomainXmlNode::toString(node, text);
}

bool AlarmTypeXml::parseXmlString(const std::string& text, AlarmType& type) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmType", node) && parseDomainXmlNode(node, type);
}

bool AlarmTypeXml::parseXmlString(const std::string& text, std::vector<AlarmType>& types) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmTypeList", node) && parseDomainXmlNode(node, types);
}
