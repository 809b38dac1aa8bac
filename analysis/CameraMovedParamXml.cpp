// <CameraMovedParam>
//     <IntelligeBaseParam ... />
// </CameraMovedParam>

#include "analysis/CameraMovedParamXml.h"

#include "analysis/RuleSteps.h"
#include "core/Frame.h"

#include <utility>

CameraMovedParamXml::CameraMovedParamXml() = default;

CameraMovedParamXml::~CameraMovedParamXml() = default;

bool CameraMovedParamXml::createDomainXmlNode(const CameraMovedParam& param, SafePointer<DomainXmlNode>& node)
{
    return frame::appendBasePart(node, param);
}

bool CameraMovedParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CameraMovedParam& param)
{
    if (!node) return false;

    CameraMovedParam read;
    frame::readBasePart(node, read);
    param = std::move(read);
    return true;
}

bool CameraMovedParamXml::createXmlString(const CameraMovedParam& param, std::string& text)
{
    SafePointer<DomainXmlNode> node = frame::makeNode("CameraMovedParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool CameraMovedParamXml::parseXmlString(const std::string& text, CameraMovedParam& param)
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "CameraMovedParam", node) && parseDomainXmlNode(node, param);
}
