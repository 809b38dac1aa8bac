// <BlindAreaParamList>
//     <BlindAreaParam CameraId="1" EnableFlag="true" Type="1">
//         <ColorParam Red="255" Green="128" Blue="0" Alpha="64" />
//         <MosaicParam Width="16" Height="8" />
//         <AreaParamList>
//             <AreaParam TopX="1" TopY="2" Width="30" Height="40" />
//         </AreaParamList>
//     </BlindAreaParam>
// </BlindAreaParamList>
//
// The node form puts "MosaicParam" last: each form keeps the order that its own peers write.

#include "media/BlindAreaParamXml.h"

#include "core/ColorParamXml.h"
#include "core/Frame.h"
#include "media/AreaParamXml.h"
#include "media/MosaicParamXml.h"

#include <utility>
#include <vector>

namespace
{

bool readItem(const TiXmlElement& element, BlindAreaParam& area)
{
    area.setCameraId(frame::queriedIntOf(element, "CameraId", area.getCameraId()));
    area.setEnableFlag(frame::flagOf(element, "EnableFlag", area.getEnableFlag()));
    area.setType(frame::intOf(element, "Type", 1));

    const TiXmlElement* child = element.FirstChildElement("ColorParam");
    if (child != nullptr)
    {
        ColorParam color;
        if (!ColorParamXml::readElement(*child, color)) return false;
        area.setColor(color);
    }

    child = element.FirstChildElement("MosaicParam");
    if (child != nullptr)
    {
        MosaicParam mosaic;
        if (!MosaicParamXml::readElement(*child, mosaic)) return false;
        area.setMosaic(mosaic);
    }

    const TiXmlElement* item = frame::firstItem(element, "AreaParamList", "AreaParam");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AreaParam rectangle;
        if (!AreaParamXml::readElement(*item, rectangle)) return false;
        area.getAreaParam().push_back(rectangle);
    }
    return true;
}

} // namespace

BlindAreaParamXml::BlindAreaParamXml() = default;

BlindAreaParamXml::~BlindAreaParamXml() = default;

void BlindAreaParamXml::createXmlNode()
{
    writeElement(document_, areas_);
}

bool BlindAreaParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool BlindAreaParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "BlindAreaParamList", document_, node_) && parseXmlNode();
}

bool BlindAreaParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, areas_);
}

TiXmlElement& BlindAreaParamXml::writeElement(TiXmlNode& parent, const std::vector<BlindAreaParam>& areas)
{
    TiXmlElement& element = frame::appendElement(parent, "BlindAreaParamList");
    for (const BlindAreaParam& area : areas)
    {
        TiXmlElement& item = frame::appendElement(element, "BlindAreaParam");
        frame::setInt(item, "CameraId", area.getCameraId());
        frame::setFlag(item, "EnableFlag", area.getEnableFlag());
        frame::setInt(item, "Type", area.getType());

        ColorParamXml::writeElement(item, area.getColor());

        MosaicParamXml::writeElement(item, area.getMosaic());

        TiXmlElement& rectangles = frame::appendElement(item, "AreaParamList");
        for (const AreaParam& rectangle : area.getAreaParam())
            AreaParamXml::writeElement(rectangles, rectangle);
    }
    return element;
}

bool BlindAreaParamXml::readElement(const TiXmlElement& element, std::vector<BlindAreaParam>& areas)
{
    const TiXmlElement* item = frame::firstItem(element, "BlindAreaParam");
    for (; item != nullptr; item = item->NextSiblingElement("BlindAreaParam"))
    {
        BlindAreaParam area;
        if (!readItem(*item, area)) return false;
        areas.push_back(std::move(area));
    }
    return true;
}

bool BlindAreaParamXml::createDomainXmlNode(const BlindAreaParam& area, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("CameraId", area.getCameraId());
    node->setProperty("EnableFlag", area.getEnableFlag());
    node->setProperty("Type", area.getType());

    SafePointer<DomainXmlNode> color = frame::appendNode(node, "ColorParam");
    if (!ColorParamXml().createDomainXmlNode(area.getColor(), color)) return false;

    const AreaParamXml rectangleCodec;
    SafePointer<DomainXmlNode> rectangles = frame::appendNode(node, "AreaParamList");
    for (const AreaParam& rectangle : area.getAreaParam())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(rectangles, "AreaParam");
        if (!rectangleCodec.createDomainXmlNode(rectangle, item)) return false;
    }

    SafePointer<DomainXmlNode> mosaic = frame::appendNode(node, "MosaicParam");
    return MosaicParamXml().createDomainXmlNode(area.getMosaic(), mosaic);
}

bool BlindAreaParamXml::createDomainXmlNode(const std::vector<BlindAreaParam>& areas,
                                            SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const BlindAreaParam& area : areas)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "BlindAreaParam");
        if (!createDomainXmlNode(area, item)) return false;
    }
    return true;
}

bool BlindAreaParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, BlindAreaParam& area) const
{
    if (!node) return false;

    area.setCameraId(
        frame::intProperty(node, "CameraId", 0, "BlindAreaParamXml::parseDomainXmlNode get CameraId failed "));
    area.setEnableFlag(
        frame::flagProperty(node, "EnableFlag", false, "BlindAreaParamXml::parseDomainXmlNode get EnableFlag failed "));
    area.setType(frame::intProperty(node, "Type", 0, "BlindAreaParamXml::parseDomainXmlNode get Type failed "));

    SafePointer<DomainXmlNode> child;
    ColorParam color;
    if (node->getConfigNode("ColorParam", child)) ColorParamXml().parseDomainXmlNode(child, color);
    area.setColor(color);

    const AreaParamXml rectangleCodec;
    std::vector<AreaParam> rectangles;
    TiXmlElement* item = node->getConfigNode("AreaParamList", child) ? frame::firstChild(child) : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        AreaParam rectangle;
        if (!rectangleCodec.parseDomainXmlNode(frame::nodeOf(*item), rectangle)) return false;
        rectangles.push_back(rectangle);
    }
    area.getAreaParam() = std::move(rectangles);

    MosaicParam mosaic;
    if (node->getConfigNode("MosaicParam", child)) MosaicParamXml().parseDomainXmlNode(child, mosaic);
    area.setMosaic(mosaic);
    return true;
}

bool BlindAreaParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                           std::vector<BlindAreaParam>& areas) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        BlindAreaParam area;
        if (!parseDomainXmlNode(frame::nodeOf(*item), area)) return false;
        areas.push_back(std::move(area));
    }
    return true;
}

bool BlindAreaParamXml::createXmlString(const BlindAreaParam& area, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("BlindAreaParam");
    return createDomainXmlNode(area, node) && DomainXmlNode::toString(node, text);
}

bool BlindAreaParamXml::createXmlString(const std::vector<BlindAreaParam>& areas, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("BlindAreaParamList");
    return createDomainXmlNode(areas, node) && DomainXmlNode::toString(node, text);
}

bool BlindAreaParamXml::parseXmlString(const std::string& text, BlindAreaParam& area) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "BlindAreaParam", node) && parseDomainXmlNode(node, area);
}

bool BlindAreaParamXml::parseXmlString(const std::string& text, std::vector<BlindAreaParam>& areas) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "BlindAreaParamList", node) && parseDomainXmlNode(node, areas);
}
