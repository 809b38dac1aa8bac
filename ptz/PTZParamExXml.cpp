// <PTZParamEx InternalPTZId="1">
//     <PTZParamList>
//         <PTZParam ... />
//     </PTZParamList>
// </PTZParamEx>

#include "ptz/PTZParamExXml.h"

#include "core/Frame.h"
#include "ptz/PTZParamXml.h"

#include <utility>

PTZParamExXml::PTZParamExXml() = default;

PTZParamExXml::~PTZParamExXml() = default;

bool PTZParamExXml::createDomainXmlNode(const PTZParamEx& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> child = frame::appendNode(node, "PTZParamList");
    if (!PTZParamXml().createDomainXmlNode(param.getPTZParamList(), child)) return false;

    node->setProperty("InternalPTZId", param.getInternalPTZId());
    return true;
}

bool PTZParamExXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, PTZParamEx& param) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> child;
    std::vector<PTZParam> heads;
    node->getConfigNode("PTZParamList", child);
    PTZParamXml().parseDomainXmlNode(child, heads);
    param.getPTZParamList() = std::move(heads);

    param.setInternalPTZId(
        frame::intProperty(node, "InternalPTZId", 0, "PTZParamExXml::parseDomainXmlNode ATTR_INTERNAL_PTZ_ID failed "));
    return true;
}

bool PTZParamExXml::createXmlString(const PTZParamEx& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("PTZParamEx");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool PTZParamExXml::parseXmlString(const std::string& text, PTZParamEx& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "PTZParamEx", node) && parseDomainXmlNode(node, param);
}
