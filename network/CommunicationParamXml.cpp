// <CommunicationParam IPProtoFlag="2" />
//
// in the document form, and in the node form
//
// <CommunicationParam>
//     <CommunicationParam IPProtoFlag="2" />
// </CommunicationParam>

#include "network/CommunicationParamXml.h"

#include "core/Frame.h"

CommunicationParamXml::CommunicationParamXml() = default;

CommunicationParamXml::~CommunicationParamXml() = default;

void CommunicationParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool CommunicationParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool CommunicationParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "CommunicationParam", document_, node_) && parseXmlNode();
}

bool CommunicationParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& CommunicationParamXml::writeElement(TiXmlNode& parent, const CommunicationParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "CommunicationParam");
    frame::setInt(element, "IPProtoFlag", param.getIPProtoFlag());
    return element;
}

bool CommunicationParamXml::readElement(const TiXmlElement& element, CommunicationParam& param)
{
    param.setIPProtoFlag(frame::intOf(element, "IPProtoFlag", 0));
    return true;
}

bool CommunicationParamXml::createDomainXmlNode(const CommunicationParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->cleanChildren();
    SafePointer<DomainXmlNode> child = frame::appendNode(node, "CommunicationParam");
    child->setProperty("IPProtoFlag", param.getIPProtoFlag());
    return true;
}

bool CommunicationParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, CommunicationParam& param) const
{
    SafePointer<DomainXmlNode> child;
    if (!node || !node->getConfigNode("CommunicationParam", child)) return false;

    param.setIPProtoFlag(frame::intProperty(child, "IPProtoFlag", 1));
    return true;
}

bool CommunicationParamXml::createXmlString(const CommunicationParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("CommunicationParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool CommunicationParamXml::parseXmlString(const std::string& text, CommunicationParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "CommunicationParam", node) && parseDomainXmlNode(node, param);
}
