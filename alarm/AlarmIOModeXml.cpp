// <AlarmIOModeType AlarmIOModeType="2" />
//
// What the document form writes is called "AlarmIOMode", the name that the devices look for; what they answer bears the
// name that all readers know.

#include "alarm/AlarmIOModeXml.h"

#include "core/Frame.h"

AlarmIOModeXml::AlarmIOModeXml() = default;

AlarmIOModeXml::~AlarmIOModeXml() = default;

void AlarmIOModeXml::createXmlNode()
{
    writeElement(document_, mode_);
}

bool AlarmIOModeXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AlarmIOModeXml::parseXmlString()
{
    return frame::parseRoot(text_, "AlarmIOModeType", document_, node_) && parseXmlNode();
}

bool AlarmIOModeXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, mode_);
}

TiXmlElement& AlarmIOModeXml::writeElement(TiXmlNode& parent, const AlarmIOMode& mode)
{
    TiXmlElement& element = frame::appendElement(parent, "AlarmIOMode");
    frame::setInt(element, "AlarmIOModeType", mode.getAlarmIOModeID());
    return element;
}

bool AlarmIOModeXml::readElement(const TiXmlElement& element, AlarmIOMode& mode)
{
    mode.setAlarmIOModeID(frame::intOf(element, "AlarmIOModeType", 1));
    return true;
}

bool AlarmIOModeXml::createDomainXmlNode(const AlarmIOMode& mode, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("AlarmIOModeType", mode.getAlarmIOModeID());
    return true;
}

bool AlarmIOModeXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AlarmIOMode& mode) const
{
    if (!node) return false;

    mode.setAlarmIOModeID(frame::intProperty(node, "AlarmIOModeType", -1,
                                             "AlarmIOModeXml::parseDomainXmlNode get AlarmIOModeType failed "));
    return true;
}

bool AlarmIOModeXml::createXmlString(const AlarmIOMode& mode, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AlarmIOModeType");
    return createDomainXmlNode(mode, node) && DomainXmlNode::toString(node, text);
}

bool AlarmIOModeXml::parseXmlString(const std::string& text, AlarmIOMode& mode) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AlarmIOModeType", node) && parseDomainXmlNode(node, mode);
}
