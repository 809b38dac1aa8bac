// <AlarmParam AlarmInterval="10" />

#include "alarm/AlarmParamXml.h"

#include "core/Frame.h"

AlarmParamXml::AlarmParamXml() = default;

AlarmParamXml::~AlarmParamXml() = default;

void AlarmParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool AlarmParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmParam", document_, node_) && parseXmlNode();
}

bool AlarmParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& AlarmParamXml::writeElement(TiXmlNode& parent, const AlarmParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmParam");
    frame::setInt(element, "AlarmInterval", param.getAlarmInterval());
    return element;
}

bool AlarmParamXml::readElement(const TiXmlElement& element, AlarmParam& param)
{
    param.setAlarmInterval(frame::intOf(element, "AlarmInterval", 0));
    return true;
}

bool AlarmParamXml::createDomainXmlNode(const AlarmParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("AlarmInterval", param.getAlarmInterval());
    return true;
}

bool AlarmParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmParam& param) const
{
    if (!node) return false;

    param.setAlarmInterval(frame::intProperty(node, "AlarmInterval", 0,
                                              "AlarmParamXml::parseDomainXmlNode node = ATTR_ALARM_INTERVAL failed "));
    return true;
}

bool AlarmParamXml::createXmlString(const AlarmParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool AlarmParamXml::parseXmlString(const std::string& text, AlarmParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmParam", node) && parseDomainXmlNode(node, param);
}
