// <ZentarDDNSAbility DDNSEnableFlag="true" DDNSHostName="ddns.example.org" />

#include "device/ZentarDDNSAbilityXml.h"

#include "core/Frame.h"

ZentarDDNSAbilityXml::ZentarDDNSAbilityXml() = default;

ZentarDDNSAbilityXml::~ZentarDDNSAbilityXml() = default;

void ZentarDDNSAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool ZentarDDNSAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ZentarDDNSAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "ZentarDDNSAbility", document_, node_) && parseXmlNode();
}

bool ZentarDDNSAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& ZentarDDNSAbilityXml::writeElement(TiXmlNode& parent, const ZentarDDNSAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "ZentarDDNSAbility");
    frame::setFlag(element, "DDNSEnableFlag", ability.getZentarDDNSAbility());
    frame::setText(element, "DDNSHostName", ability.getZentarDDNSHostName());
    return element;
}

bool ZentarDDNSAbilityXml::readElement(const TiXmlElement& element, ZentarDDNSAbility& ability)
{
    ability.setZentarDDNSAbility(frame::flagOf(element, "DDNSEnableFlag", false));
    ability.setZentarDDNSHostName(frame::textOf(element, "DDNSHostName", ""));
    return true;
}

bool ZentarDDNSAbilityXml::createDomainXmlNode(const ZentarDDNSAbility& ability, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DDNSEnableFlag", ability.getZentarDDNSAbility());
    node->setProperty("DDNSHostName", ability.getZentarDDNSHostName());
    return true;
}

bool ZentarDDNSAbilityXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ZentarDDNSAbility& ability) const
{
    if (!node) return false;

    ability.setZentarDDNSAbility(frame::flagProperty(node, "DDNSEnableFlag", false));
    ability.setZentarDDNSHostName(frame::textProperty(node, "DDNSHostName", ""));
    return true;
}

bool ZentarDDNSAbilityXml::createXmlString(const ZentarDDNSAbility& ability, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ZentarDDNSAbility");
    return createDomainXmlNode(ability, node) && DomainXmlNode::toString(node, text);
}

bool ZentarDDNSAbilityXml::parseXmlString(const std::string& text, ZentarDDNSAbility& ability) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ZentarDDNSAbility", node) && parseDomainXmlNode(node, ability);
}
