// <I3GTimeConnectPolicyParamList>
//     <I3GTimeConnectPolicyParam EnableFlag="true" OnlineMode="2">
//         <ScheduleTimeParam ... />
//     </I3GTimeConnectPolicyParam>
// </I3GTimeConnectPolicyParamList>

#include "network/I3GTimeConnectPolicyParamXml.h"

#include "alarm/ScheduleTimeParamXml.h"
#include "core/Frame.h"

#include <utility>

I3GTimeConnectPolicyParamXml::I3GTimeConnectPolicyParamXml() = default;

I3GTimeConnectPolicyParamXml::~I3GTimeConnectPolicyParamXml() = default;

void I3GTimeConnectPolicyParamXml::createXmlNode()
{
    writeElement(document_, policy_);
}

bool I3GTimeConnectPolicyParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool I3GTimeConnectPolicyParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "I3GTimeConnectPolicyParam", document_, node_) && parseXmlNode();
}

bool I3GTimeConnectPolicyParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, policy_);
}

TiXmlElement& I3GTimeConnectPolicyParamXml::writeElement(TiXmlNode& parent, const I3GTimeConnectPolicyParam& policy)
{
    TiXmlElement& element = frame::appendElement(parent, "I3GTimeConnectPolicyParam");
    frame::setFlag(element, "EnableFlag", policy.getEnableFlag());
    frame::setInt(element, "OnlineMode", policy.getOnlineMode());

    ScheduleTimeParamXml::writeElement(element, policy.getScheduleTimeParam());
    return element;
}

bool I3GTimeConnectPolicyParamXml::readElement(const TiXmlElement& element, I3GTimeConnectPolicyParam& policy)
{
    policy.setEnableFlag(frame::flagOf(element, "EnableFlag", policy.getEnableFlag()));
    policy.setOnlineMode(frame::intOf(element, "OnlineMode", policy.getOnlineMode()));

    const TiXmlElement* child = element.FirstChildElement("ScheduleTimeParam");
    if (child != nullptr)
    {
        ScheduleTimeParam schedule;
        if (!ScheduleTimeParamXml::readElement(*child, schedule)) return false;
        policy.getScheduleTimeParam() = std::move(schedule);
    }
    return true;
}

bool I3GTimeConnectPolicyParamXml::createDomainXmlNode(const I3GTimeConnectPolicyParam& policy,
                                                       SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("EnableFlag", policy.getEnableFlag());
    node->setProperty("OnlineMode", policy.getOnlineMode());

    SafePointer<DomainXmlNode> scheduleNode = frame::appendNode(node, "ScheduleTimeParam");
    return ScheduleTimeParamXml().createDomainXmlNode(policy.getScheduleTimeParam(), scheduleNode);
}

bool I3GTimeConnectPolicyParamXml::createDomainXmlNode(const std::vector<I3GTimeConnectPolicyParam>& policies,
                                                       SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const I3GTimeConnectPolicyParam& policy : policies)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "I3GTimeConnectPolicyParam");
        if (!createDomainXmlNode(policy, item)) return false;
    }
    return true;
}

bool I3GTimeConnectPolicyParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                      I3GTimeConnectPolicyParam& policy) const
{
    if (!node) return false;

    policy.setEnableFlag(frame::flagProperty(node, "EnableFlag", false));
    policy.setOnlineMode(frame::intProperty(node, "OnlineMode", 0));

    ScheduleTimeParam schedule;
    SafePointer<DomainXmlNode> scheduleNode;
    if (node->getConfigNode("ScheduleTimeParam", scheduleNode))
        ScheduleTimeParamXml().parseDomainXmlNode(scheduleNode, schedule);
    policy.getScheduleTimeParam() = std::move(schedule);
    return true;
}

bool I3GTimeConnectPolicyParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                      std::vector<I3GTimeConnectPolicyParam>& policies) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        I3GTimeConnectPolicyParam policy;
        if (!parseDomainXmlNode(frame::nodeOf(*item), policy)) return false;
        policies.push_back(std::move(policy));
    }
    return true;
}

bool I3GTimeConnectPolicyParamXml::createXmlString(const I3GTimeConnectPolicyParam& policy, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("I3GTimeConnectPolicyParam");
    return createDomainXmlNode(policy, node) && DomainXmlNode::toString(node, text);
}

bool I3GTimeConnectPolicyParamXml::createXmlString(const std::vector<I3GTimeConnectPolicyParam>& policies,
                                                   std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("I3GTimeConnectPolicyParamList");
    return createDomainXmlNode(policies, node) && DomainXmlNode::toString(node, text);
}

bool I3GTimeConnectPolicyParamXml::parseXmlString(const std::string& text, I3GTimeConnectPolicyParam& policy) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "I3GTimeConnectPolicyParam", node) && parseDomainXmlNode(node, policy);
}

bool I3GTimeConnectPolicyParamXml::parseXmlString(const std::string& text,
                                                  std::vector<I3GTimeConnectPolicyParam>& policies) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "I3GTimeConnectPolicyParamList", node) && parseDomainXmlNode(node, policies);
}
