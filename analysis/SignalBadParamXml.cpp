// <SignalBadParam IsGetDetail="true">
//     <IntelligeBaseParam ... />
// </SignalBadParam>

#include "analysis/SignalBadParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Frame.h"

#include <utility>

SignalBadParamXml::SignalBadParamXml() = default;

SignalBadParamXml::~SignalBadParamXml() = default;

bool SignalBadParamXml::createDomainXmlNode(const SignalBadParam& param, SafePointer<DomainXmlNode>& node)
{
    if (!frame::appendBasePart(node, param)) return false;

    node->setProperty("IsGetDetail", param.getIsGetDetail());
    return true;
}

bool SignalBadParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, SignalBadParam& param)
{
    if (!node) return false;

    SignalBadParam read;
    frame::readBasePart(node, read);
    read.setIsGetDetail(frame::flagProperty(node, "IsGetDetail", false));
    param = std::move(read);
    return true;
}

bool SignalBadParamXml::createXmlString(const SignalBadParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("SignalBadParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool SignalBadParamXml::parseXmlString(const std::string& text, SignalBadParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "SignalBadParam", node) && parseDomainXmlNode(node, param);
}
