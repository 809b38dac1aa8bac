// <BitrateTypeList>
//     <BitrateType BitrateTypeId="1" BitrateTypeName="Constant" />
// </BitrateTypeList>

#include "device/BitrateTypeXml.h"

#include "core/Frame.h"

#include <utility>

BitrateTypeXml::BitrateTypeXml() = default;

BitrateTypeXml::~BitrateTypeXml() = default;

void BitrateTypeXml::createXmlNode()
{
    writeElement(document_, type_);
}

bool BitrateTypeXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool BitrateTypeXml::parseXmlString()
{
    return frame::parseRoot(text_, "BitrateType", document_, node_) && parseXmlNode();
}

bool BitrateTypeXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, type_);
}

TiXmlElement& BitrateTypeXml::writeElement(TiXmlNode& parent, const BitrateType& type)
{
    TiXmlElement& element = frame::appendElement(parent, "BitrateType");
    frame::setInt(element, "BitrateTypeId", type.getBitrateTypeId());
    frame::setText(element, "BitrateTypeName", type.getBitrateTypeName());
    return element;
}

bool BitrateTypeXml::readElement(const TiXmlElement& element, BitrateType& type)
{
    type.setBitrateTypeId(frame::intOf(element, "BitrateTypeId", 0));
    type.setBitrateTypeName(frame::textOf(element, "BitrateTypeName", ""));
    return true;
}

bool BitrateTypeXml::createDomainXmlNode(const std::vector<BitrateType>& types, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->cleanChildren();
    for (const BitrateType& type : types)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "BitrateType");
        item->setProperty("BitrateTypeId", type.getBitrateTypeId());
        item->setProperty("BitrateTypeName", type.getBitrateTypeName());
    }
    return true;
}

bool BitrateTypeXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<BitrateType>& types) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> child = frame::nodeOf(*item);
        BitrateType type;
        type.setBitrateTypeId(frame::intProperty(child, "BitrateTypeId", 1));
        type.setBitrateTypeName(frame::textProperty(child, "BitrateTypeName", ""));
        types.push_back(std::move(type));
    }
    return true;
}

bool BitrateTypeXml::createXmlString(const std::vector<BitrateType>& types, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("BitrateTypeList");
    return createDomainXmlNode(types, node) && DomainXmlNode::toString(node, text);
}

bool BitrateTypeXml::parseXmlString(const std::string& text, std::vector<BitrateType>& types) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "BitrateTypeList", node) && parseDomainXmlNode(node, types);
}
