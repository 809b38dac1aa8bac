// <I3GMessageConnectPolicyParamList>
//     <I3GMessageConnectPolicyParam EnableFlag="true" ConnectMessagePhoneNO="+15550100" ConnectMessageContent="on"
//                                   DisconnectMessagePhoneNO="+15550199" DisconnectMessageContent="off" />
// </I3GMessageConnectPolicyParamList>

#include "network/I3GMessageConnectPolicyParamXml.h"

#include "core/Frame.h"

#include <utility>

I3GMessageConnectPolicyParamXml::I3GMessageConnectPolicyParamXml() = default;

I3GMessageConnectPolicyParamXml::~I3GMessageConnectPolicyParamXml() = default;

void I3GMessageConnectPolicyParamXml::createXmlNode()
{
    writeElement(document_, policy_);
}

bool I3GMessageConnectPolicyParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool I3GMessageConnectPolicyParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "I3GMessageConnectPolicyParam", document_, node_) && parseXmlNode();
}

bool I3GMessageConnectPolicyParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, policy_);
}

TiXmlElement& I3GMessageConnectPolicyParamXml::writeElement(TiXmlNode& parent,
                                                            const I3GMessageConnectPolicyParam& policy)
{
    TiXmlElement& element = frame::appendElement(parent, "I3GMessageConnectPolicyParam");
    frame::setFlag(element, "EnableFlag", policy.getEnableFlag());
    frame::setText(element, "ConnectMessagePhoneNO", policy.getConnectMessagePhoneNO());
    frame::setText(element, "ConnectMessageContent", policy.getConnectMessageContent());
    frame::setText(element, "DisconnectMessagePhoneNO", policy.getDisconnectMessagePhoneNO());
    frame::setText(element, "DisconnectMessageContent", policy.getDisconnectMessageContent());
    return element;
}

bool I3GMessageConnectPolicyParamXml::readElement(const TiXmlElement& element, I3GMessageConnectPolicyParam& policy)
{
    policy.setEnableFlag(frame::flagOf(element, "EnableFlag", policy.getEnableFlag()));
    policy.setConnectMessagePhoneNO(frame::textOf(element, "ConnectMessagePhoneNO", policy.getConnectMessagePhoneNO()));
    policy.setConnectMessageContent(frame::textOf(element, "ConnectMessageContent", policy.getConnectMessageContent()));
    policy.setDisconnectMessagePhoneNO(
        frame::textOf(element, "DisconnectMessagePhoneNO", policy.getDisconnectMessagePhoneNO()));
    policy.setDisconnectMessageContent(
        frame::textOf(element, "DisconnectMessageContent", policy.getDisconnectMessageContent()));
    return true;
}

bool I3GMessageConnectPolicyParamXml::createDomainXmlNode(const I3GMessageConnectPolicyParam& policy,
                                                          SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("EnableFlag", policy.getEnableFlag());
    node->setProperty("ConnectMessagePhoneNO", policy.getConnectMessagePhoneNO());
    node->setProperty("ConnectMessageContent", policy.getConnectMessageContent());
    node->setProperty("DisconnectMessagePhoneNO", policy.getDisconnectMessagePhoneNO());
    node->setProperty("DisconnectMessageContent", policy.getDisconnectMessageContent());
    return true;
}

bool I3GMessageConnectPolicyParamXml::createDomainXmlNode(const std::vector<I3GMessageConnectPolicyParam>& policies,
                                                          SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const I3GMessageConnectPolicyParam& policy : policies)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "I3GMessageConnectPolicyParam");
        if (!createDomainXmlNode(policy, item)) return false;
    }
    return true;
}

bool I3GMessageConnectPolicyParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                         I3GMessageConnectPolicyParam& policy) const
{
    if (!node) return false;

    policy.setEnableFlag(frame::flagProperty(node, "EnableFlag", false));
    policy.setConnectMessagePhoneNO(frame::textProperty(node, "ConnectMessagePhoneNO", ""));
    policy.setConnectMessageContent(frame::textProperty(node, "ConnectMessageContent", ""));
    policy.setDisconnectMessagePhoneNO(frame::textProperty(node, "DisconnectMessagePhoneNO", ""));
    policy.setDisconnectMessageContent(frame::textProperty(node, "DisconnectMessageContent", ""));
    return true;
}

bool I3GMessageConnectPolicyParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                         std::vector<I3GMessageConnectPolicyParam>& policies) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        I3GMessageConnectPolicyParam policy;
        if (!parseDomainXmlNode(frame::nodeOf(*item), policy)) return false;
        policies.push_back(std::move(policy));
    }
    return true;
}

bool I3GMessageConnectPolicyParamXml::createXmlString(const I3GMessageConnectPolicyParam& policy,
                                                      std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("I3GMessageConnectPolicyParam");
    return createDomainXmlNode(policy, node) && DomainXmlNode::toString(node, text);
}

bool I3GMessageConnectPolicyParamXml::createXmlString(const std::vector<I3GMessageConnectPolicyParam>& policies,
                                                      std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("I3GMessageConnectPolicyParamList");
    return createDomainXmlNode(policies, node) && DomainXmlNode::toString(node, text);
}

bool I3GMessageConnectPolicyParamXml::parseXmlString(const std::string& text,
                                                     I3GMessageConnectPolicyParam& policy) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "I3GMessageConnectPolicyParam", node) && parseDomainXmlNode(node, policy);
}

bool I3GMessageConnectPolicyParamXml::parseXmlString(const std::string& text,
                                                     std::vector<I3GMessageConnectPolicyParam>& policies) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "I3GMessageConnectPolicyParamList", node) && parseDomainXmlNode(node, policies);
}
