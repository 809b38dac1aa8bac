// <UploadPolicy UploadEnableFlag="true" UploadServerIP="192.0.2.8" UploadServerPort="30007" IPProtoVer="6" />

#include "network/UploadPolicyXml.h"

#include "core/Frame.h"

UploadPolicyXml::UploadPolicyXml() = default;

UploadPolicyXml::~UploadPolicyXml() = default;

void UploadPolicyXml::createXmlNode()
{
    writeElement(document_, policy_);
}

bool UploadPolicyXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool UploadPolicyXml::parseXmlString()
{
    return frame::parseRoot(text_, "UploadPolicy", document_, node_) && parseXmlNode();
}

bool UploadPolicyXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, policy_);
}

TiXmlElement& UploadPolicyXml::writeElement(TiXmlNode& parent, const UploadPolicy& policy)
{
    TiXmlElement& element = frame::appendElement(parent, "UploadPolicy");
    frame::setFlag(element, "UploadEnableFlag", policy.getUploadEnableFlag());
    frame::setText(element, "UploadServerIP", policy.getUploadServerIP());
    frame::setInt(element, "UploadServerPort", policy.getUploadServerPort());
    frame::setInt(element, "IPProtoVer", policy.getIPProtoVer());
    return element;
}

bool UploadPolicyXml::readElement(const TiXmlElement& element, UploadPolicy& policy)
{
    policy.setUploadEnableFlag(frame::flagOf(element, "UploadEnableFlag", policy.getUploadEnableFlag()));
    policy.setUploadServerIP(frame::textOf(element, "UploadServerIP", policy.getUploadServerIP()));
    policy.setUploadServerPort(frame::uint16Of(element, "UploadServerPort", policy.getUploadServerPort()));
    policy.setIPProtoVer(frame::intOf(element, "IPProtoVer", policy.getIPProtoVer()));
    return true;
}

bool UploadPolicyXml::createDomainXmlNode(const UploadPolicy& policy, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("UploadEnableFlag", policy.getUploadEnableFlag());
    node->setProperty("UploadServerIP", policy.getUploadServerIP());
    node->setProperty("UploadServerPort", policy.getUploadServerPort());
    node->setProperty("IPProtoVer", policy.getIPProtoVer());
    return true;
}

bool UploadPolicyXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, UploadPolicy& policy) const
{
    if (!node) return false;

    policy.setUploadEnableFlag(frame::flagProperty(node, "UploadEnableFlag", false));
    policy.setUploadServerIP(frame::textProperty(node, "UploadServerIP", ""));
    policy.setUploadServerPort(frame::uint16Property(node, "UploadServerPort", 0));
    policy.setIPProtoVer(frame::intProperty(node, "IPProtoVer", 1));
    return true;
}

bool UploadPolicyXml::createXmlString(const UploadPolicy& policy, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("UploadPolicy");
    return createDomainXmlNode(policy, node) && DomainXmlNode::toString(node, text);
}

bool UploadPolicyXml::parseXmlString(const std::string& text, UploadPolicy& policy) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "UploadPolicy", node) && parseDomainXmlNode(node, policy);
}
