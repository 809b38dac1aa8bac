// <SpecialCustom DispalyInfoShowFlag="true" StreamNameShowFlag="false" ... BitRateShowFlag="true" />
//
// The first name is misspelt in the documents of all peers.

#include "device/SpecialCustomXml.h"

#include "core/Frame.h"

SpecialCustomXml::SpecialCustomXml() = default;

SpecialCustomXml::~SpecialCustomXml() = default;

bool SpecialCustomXml::createDomainXmlNode(const SpecialCustom& custom, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DispalyInfoShowFlag", custom.getDispalyInfoShowFlag());
    node->setProperty("StreamNameShowFlag", custom.getStreamNameShowFlag());
    node->setProperty("EncodeTypeShowFlag", custom.getEncodeTypeShowFlag());
    node->setProperty("ResolutionNameShowFlag", custom.getResolutionNameShowFlag());
    node->setProperty("FrameRateShowFlag", custom.getFrameRateShowFlag());
    node->setProperty("BitRateShowFlag", custom.getBitRateShowFlag());
    return true;
}

bool SpecialCustomXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SpecialCustom& custom) const
{
    if (!node) return false;

    custom.setDispalyInfoShowFlag(frame::flagProperty(node, "DispalyInfoShowFlag", false));
    custom.setStreamNameShowFlag(frame::flagProperty(node, "StreamNameShowFlag", false));
    custom.setEncodeTypeShowFlag(frame::flagProperty(node, "EncodeTypeShowFlag", false));
    custom.setResolutionNameShowFlag(frame::flagProperty(node, "ResolutionNameShowFlag", false));
    custom.setFrameRateShowFlag(frame::flagProperty(node, "FrameRateShowFlag", false));
    custom.setBitRateShowFlag(frame::flagProperty(node, "BitRateShowFlag", false));
    return true;
}

bool SpecialCustomXml::createXmlString(const SpecialCustom& custom, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("SpecialCustom");
    return createDomainXmlNode(custom, node) && DomainXmlNode::toString(node, text);
}

bool SpecialCustomXml::parseXmlString(const std::string& text, SpecialCustom& custom) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "SpecialCustom", node) && parseDomainXmlNode(node, custom);
}
