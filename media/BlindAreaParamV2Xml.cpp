// <BlindAreaParamList>
//     <BlindAreaParam AreaId="1" EnableFlag="true" AreaName="Till">
//         <ColorParam Red="255" Green="128" Blue="0" Alpha="64" />
//         <AreaParam TopX="0.1" TopY="0.2" Width="0.3" Height="0.4" />
//     </BlindAreaParam>
// </BlindAreaParamList>
//
// The children travel through their codecs as texts, so that a child is here what it is on its own.

#include "media/BlindAreaParamV2Xml.h"

#include "core/ColorParamXml.h"
#include "core/Frame.h"
#include "media/AreaParamV2Xml.h"

#include <utility>

namespace
{

bool addText(SafePointer<DomainXmlNode>& parent, const std::string& text)
{
    SafePointer<DomainXmlNode> child;
    return DomainXmlNode::parse(text, child) && parent->addConfigNode(child);
}

bool textOfChild(const SafePointer<DomainXmlNode>& parent, const char* name, std::string& text)
{
    SafePointer<DomainXmlNode> child;
    return parent->getConfigNode(name, child) && DomainXmlNode::toString(child, text);
}

bool writeNode(const BlindAreaParamV2& area, SafePointer<DomainXmlNode>& node)
{
    node->setProperty("AreaId", area.getAreaId());
    node->setProperty("EnableFlag", area.getEnableFlag());
    node->setProperty("AreaName", area.getAreaName());

    ColorParamXml color;
    color.setColorParam(area.getColor());
    if (!color.createXmlString() || !addText(node, color.getXmlString())) return false;

    std::string rectangle;
    return AreaParamV2Xml().createXmlString(area.getAreaParamV2(), rectangle) && addText(node, rectangle);
}

void readNode(const SafePointer<DomainXmlNode>& node, BlindAreaParamV2& area)
{
    area.setAreaId(frame::intProperty(node, "AreaId", -1));
    area.setEnableFlag(frame::flagProperty(node, "EnableFlag", false));
    area.setAreaName(frame::textProperty(node, "AreaName", ""));

    std::string text;
    if (textOfChild(node, "ColorParam", text))
    {
        ColorParamXml color;
        color.setXmlString(text);
        if (color.parseXmlString()) area.setColor(color.getColorParam());
    }

    AreaParamV2 rectangle;
    if (textOfChild(node, "AreaParam", text) && AreaParamV2Xml().parseXmlString(text, rectangle))
        area.setAreaParamV2(rectangle);
}

} // namespace

BlindAreaParamV2Xml::BlindAreaParamV2Xml() = default;

BlindAreaParamV2Xml::~BlindAreaParamV2Xml() = default;

bool BlindAreaParamV2Xml::createXmlString(const std::vector<BlindAreaParamV2>& areas, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("BlindAreaParamList");
    for (const BlindAreaParamV2& area : areas)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "BlindAreaParam");
        if (!writeNode(area, item)) return false;
    }
    return DomainXmlNode::toString(node, text);
}

bool BlindAreaParamV2Xml::parseXmlString(const std::string& text, std::vector<BlindAreaParamV2>& areas) const
{
    SafePointer<DomainXmlNode> node;
    if (!DomainXmlNode::parse(text, "BlindAreaParamList", node)) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        BlindAreaParamV2 area;
        readNode(frame::nodeOf(*item), area);
        areas.push_back(std::move(area));
    }
    return true;
}
