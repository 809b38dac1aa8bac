// <BlindAreaAbility>
//     <MaxArea maxBlindAreaNum="4" sizeRate="50" />
//     <Type>
//         <Type type="1" />
//     </Type>
//     <Color>
//         <Color R="255" G="128" B="0" />
//     </Color>
//     <Alpha>
//         <Alpha alpha="64" />
//     </Alpha>
//     <MosaicSize>
//         <MosaicSize width="16" height="8" />
//     </MosaicSize>
// </BlindAreaAbility>
//
// Each container bears the name of its items.

#include "device/BlindAbilityXmlV2.h"

#include "core/Frame.h"

#include <utility>

BlindAbilityXmlV2::BlindAbilityXmlV2() = default;

BlindAbilityXmlV2::~BlindAbilityXmlV2() noexcept = default;

void BlindAbilityXmlV2::createXmlNode()
{
    tree_ = frame::makeNode("BlindAreaAbility");
    element_ = tree_->getXmlNode();
    writeContent(*element_, ability_);
}

bool BlindAbilityXmlV2::createXmlString()
{
    createXmlNode();
    return DomainXmlNode::toString(tree_, text_);
}

bool BlindAbilityXmlV2::parseXmlString()
{
    if (!DomainXmlNode::parse(text_, "BlindAreaAbility", tree_)) return false;
    element_ = tree_->getXmlNode();
    return parseXmlNode();
}

bool BlindAbilityXmlV2::parseXmlNode()
{
    return element_ != nullptr && readElement(*element_, ability_);
}

TiXmlElement& BlindAbilityXmlV2::writeElement(TiXmlNode& parent, const BlindAbilityV2& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "BlindAreaAbility");
    writeContent(element, ability);
    return element;
}

bool BlindAbilityXmlV2::readElement(const TiXmlElement& element, BlindAbilityV2& ability)
{
    const TiXmlElement* maxArea = element.FirstChildElement("MaxArea");
    const TiXmlElement* types = element.FirstChildElement("Type");
    const TiXmlElement* colors = element.FirstChildElement("Color");
    const TiXmlElement* alphas = element.FirstChildElement("Alpha");
    const TiXmlElement* sizes = element.FirstChildElement("MosaicSize");
    if (maxArea == nullptr || types == nullptr || colors == nullptr || alphas == nullptr || sizes == nullptr)
        return false;

    BlindAbilityV2 read;
    read.setMaxBlindAreaNum(frame::intOf(*maxArea, "maxBlindAreaNum", 0));
    read.setBlindAreaRate(frame::intOf(*maxArea, "sizeRate", 0));

    const TiXmlElement* item = types->FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
        read.getTypeList().push_back(frame::intOf(*item, "type", 0));

    for (item = colors->FirstChildElement(); item != nullptr; item = item->NextSiblingElement())
    {
        RGBColor color;
        color.setR(frame::intOf(*item, "R", 0));
        color.setG(frame::intOf(*item, "G", 0));
        color.setB(frame::intOf(*item, "B", 0));
        read.getRGBColorList().push_back(color);
    }

    for (item = alphas->FirstChildElement(); item != nullptr; item = item->NextSiblingElement())
        read.getAlphaList().push_back(frame::intOf(*item, "alpha", 0));

    for (item = sizes->FirstChildElement(); item != nullptr; item = item->NextSiblingElement())
    {
        MosaicParam size;
        size.setWidth(frame::uint32Of(*item, "width", 0));
        size.setHeight(frame::uint32Of(*item, "height", 0));
        read.getMosaicParamList().push_back(size);
    }

    ability = std::move(read);
    return true;
}

void BlindAbilityXmlV2::writeContent(TiXmlElement& element, const BlindAbilityV2& ability)
{
    TiXmlElement& maxArea = frame::appendElement(element, "MaxArea");
    frame::setInt(maxArea, "maxBlindAreaNum", ability.getMaxBlindAreaNum());
    frame::setInt(maxArea, "sizeRate", ability.getBlindAreaRate());

    TiXmlElement& types = frame::appendElement(element, "Type");
    for (const int type : ability.getTypeList())
        frame::setInt(frame::appendElement(types, "Type"), "type", type);

    TiXmlElement& colors = frame::appendElement(element, "Color");
    for (const RGBColor& color : ability.getRGBColorList())
    {
        TiXmlElement& item = frame::appendElement(colors, "Color");
        frame::setInt(item, "R", color.getR());
        frame::setInt(item, "G", color.getG());
        frame::setInt(item, "B", color.getB());
    }

    TiXmlElement& alphas = frame::appendElement(element, "Alpha");
    for (const int alpha : ability.getAlphaList())
        frame::setInt(frame::appendElement(alphas, "Alpha"), "alpha", alpha);

    TiXmlElement& sizes = frame::appendElement(element, "MosaicSize");
    for (const MosaicParam& size : ability.getMosaicParamList())
    {
        TiXmlElement& item = frame::appendElement(sizes, "MosaicSize");
        frame::setInt(item, "width", static_cast<int>(size.getWidth()));
        frame::setInt(item, "height", static_cast<int>(size.getHeight()));
    }
}
