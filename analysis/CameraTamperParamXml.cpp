// <CameraTamperParam MinTime="30">
//     <IntelligeBaseParam ... />
// </CameraTamperParam>

#include "analysis/CameraTamperParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Frame.h"

#include <utility>

CameraTamperParamXml::CameraTamperParamXml() = default;

CameraTamperParamXml::~CameraTamperParamXml() = default;

bool CameraTamperParamXml::createDomainXmlNode(const CameraTamperParam& param, SafePointer<DomainXmlNode>& node)
{
    if (!frame::appendBasePart(node, param)) return false;

    node->setProperty("MinTime", param.getMinTime());
    return true;
}

bool CameraTamperParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CameraTamperParam& param)
{
    if (!node) return false;

    CameraTamperParam read;
    frame::readBasePart(node, read);
    read.setMinTime(frame::intProperty(node, "MinTime", 0));
    param = std::move(read);
    return true;
}

bool CameraTamperParamXml::createXmlString(const CameraTamperParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("CameraTamperParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool CameraTamperParamXml::parseXmlString(const std::string& text, CameraTamperParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "CameraTamperParam", node) && parseDomainXmlNode(node, param);
}
