// <I3GPolicyParamList>
//     <I3GPolicyParam EnableFlag="true">
//         <I3GMessageConnectPolicyParam ... />
//         <I3GTimeConnectPolicyParam ... />
//     </I3GPolicyParam>
// </I3GPolicyParamList>

#include "network/I3GPolicyParamXml.h"

#include "core/Frame.h"
#include "network/I3GMessageConnectPolicyParamXml.h"
#include "network/I3GTimeConnectPolicyParamXml.h"

#include <utility>

I3GPolicyParamXml::I3GPolicyParamXml() = default;

I3GPolicyParamXml::~I3GPolicyParamXml() = default;

void I3GPolicyParamXml::createXmlNode()
{
    writeElement(document_, policy_);
}

bool I3GPolicyParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool I3GPolicyParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "I3GPolicyParam", document_, node_) && parseXmlNode();
}

bool I3GPolicyParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, policy_);
}

TiXmlElement& I3GPolicyParamXml::writeElement(TiXmlNode& parent, const I3GPolicyParam& policy)
{
    TiXmlElement& element = frame::appendElement(parent, "I3GPolicyParam");
    frame::setFlag(element, "EnableFlag", policy.getEnableFlag());

    I3GMessageConnectPolicyParamXml::writeElement(element, policy.get3GMessageConnectPolicyParam());
    I3GTimeConnectPolicyParamXml::writeElement(element, policy.get3GTimeConnectPolicyParam());
    return element;
}

bool I3GPolicyParamXml::readElement(const TiXmlElement& element, I3GPolicyParam& policy)
{
    policy.setEnableFlag(frame::flagOf(element, "EnableFlag", policy.getEnableFlag()));

    const TiXmlElement* messageChild = element.FirstChildElement("I3GMessageConnectPolicyParam");
    if (messageChild != nullptr)
    {
        I3GMessageConnectPolicyParam messagePolicy;
        if (!I3GMessageConnectPolicyParamXml::readElement(*messageChild, messagePolicy)) return false;
        policy.get3GMessageConnectPolicyParam() = std::move(messagePolicy);
    }

    const TiXmlElement* timeChild = element.FirstChildElement("I3GTimeConnectPolicyParam");
    if (timeChild != nullptr)
    {
        I3GTimeConnectPolicyParam timePolicy;
        if (!I3GTimeConnectPolicyParamXml::readElement(*timeChild, timePolicy)) return false;
        policy.get3GTimeConnectPolicyParam() = std::move(timePolicy);
    }
    return true;
}

bool I3GPolicyParamXml::createDomainXmlNode(const I3GPolicyParam& policy, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("EnableFlag", policy.getEnableFlag());

    SafePointer<DomainXmlNode> messageNode = frame::appendNode(node, "I3GMessageConnectPolicyParam");
    if (!I3GMessageConnectPolicyParamXml().createDomainXmlNode(policy.get3GMessageConnectPolicyParam(), messageNode))
        return false;
    SafePointer<DomainXmlNode> timeNode = frame::appendNode(node, "I3GTimeConnectPolicyParam");
    return I3GTimeConnectPolicyParamXml().createDomainXmlNode(policy.get3GTimeConnectPolicyParam(), timeNode);
}

bool I3GPolicyParamXml::createDomainXmlNode(const std::vector<I3GPolicyParam>& policies,
                                            SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const I3GPolicyParam& policy : policies)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "I3GPolicyParam");
        if (!createDomainXmlNode(policy, item)) return false;
    }
    return true;
}

bool I3GPolicyParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, I3GPolicyParam& policy) const
{
    if (!node) return false;

    policy.setEnableFlag(
        frame::flagProperty(node, "EnableFlag", false, "I3GPolicyParamXml::parseDomainXmlNode get EnableFlag failed "));

    I3GMessageConnectPolicyParam messagePolicy;
    SafePointer<DomainXmlNode> messageNode;
    if (node->getConfigNode("I3GMessageConnectPolicyParam", messageNode))
        I3GMessageConnectPolicyParamXml().parseDomainXmlNode(messageNode, messagePolicy);
    policy.get3GMessageConnectPolicyParam() = std::move(messagePolicy);

    I3GTimeConnectPolicyParam timePolicy;
    SafePointer<DomainXmlNode> timeNode;
    if (node->getConfigNode("I3GTimeConnectPolicyParam", timeNode))
        I3GTimeConnectPolicyParamXml().parseDomainXmlNode(timeNode, timePolicy);
    policy.get3GTimeConnectPolicyParam() = std::move(timePolicy);
    return true;
}

bool I3GPolicyParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                           std::vector<I3GPolicyParam>& policies) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        I3GPolicyParam policy;
        if (!parseDomainXmlNode(frame::nodeOf(*item), policy)) return false;
        policies.push_back(std::move(policy));
    }
    return true;
}

bool I3GPolicyParamXml::createXmlString(const I3GPolicyParam& policy, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("I3GPolicyParam");
    return createDomainXmlNode(policy, node) && DomainXmlNode::toString(node, text);
}

bool I3GPolicyParamXml::createXmlString(const std::vector<I3GPolicyParam>& policies, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("I3GPolicyParamList");
    return createDomainXmlNode(policies, node) && DomainXmlNode::toString(node, text);
}

bool I3GPolicyParamXml::parseXmlString(const std::string& text, I3GPolicyParam& policy) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "I3GPolicyParam", node) && parseDomainXmlNode(node, policy);
}

bool I3GPolicyParamXml::parseXmlString(const std::string& text, std::vector<I3GPolicyParam>& policies) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "I3GPolicyParamList", node) && parseDomainXmlNode(node, policies);
}
