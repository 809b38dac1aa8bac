// <OSDFontAbility>
//     <OSDFontTypeList>
//         <OSDFontType fontId="1" description="Sans" />
//     </OSDFontTypeList>
//     <OSDColorList>
//         <OSDColor colorR="255" colorG="255" colorB="255" />
//     </OSDColorList>
//     <OSDInverseColorList>
//         <OSDInverseColor colorR="0" colorG="0" colorB="0" />
//     </OSDInverseColorList>
//     <OSDAlphaList>
//         <OSDAlpha alpha="64" />
//     </OSDAlphaList>
// </OSDFontAbility>

#include "device/OSDFontAbilityXml.h"

#include "core/Frame.h"
#include "device/AbilitySteps.h"

#include <utility>
#include <vector>

namespace
{

void writeColors(TiXmlElement& list, const char* name, const std::vector<OSDColor>& colors)
{
    for (const OSDColor& color : colors)
    {
        TiXmlElement& item = frame::appendElement(list, name);
        frame::setInt(item, "colorR", color.getColorR());
        frame::setInt(item, "colorG", color.getColorG());
        frame::setInt(item, "colorB", color.getColorB());
    }
}

void readColors(const TiXmlElement& list, std::vector<OSDColor>& colors)
{
    const TiXmlElement* item = list.FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        OSDColor color;
        color.setColorR(frame::intOf(*item, "colorR", 0));
        color.setColorG(frame::intOf(*item, "colorG", 0));
        color.setColorB(frame::intOf(*item, "colorB", 0));
        colors.push_back(color);
    }
}

} // namespace

OSDFontAbilityXml::OSDFontAbilityXml() = default;

OSDFontAbilityXml::~OSDFontAbilityXml() noexcept = default;

void OSDFontAbilityXml::createXmlNode()
{
    tree_ = frame::makeNode("OSDFontAbility");
    element_ = tree_->getXmlNode();
    writeContent(*element_, ability_);
}

bool OSDFontAbilityXml::createXmlString()
{
    createXmlNode();
    return DomainXmlNode::toString(tree_, text_);
}

bool OSDFontAbilityXml::parseXmlString()
{
    if (!DomainXmlNode::parse(text_, "OSDFontAbility", tree_)) return false;
    element_ = tree_->getXmlNode();
    return parseXmlNode();
}

bool OSDFontAbilityXml::parseXmlNode()
{
    return element_ != nullptr && readElement(*element_, ability_);
}

TiXmlElement& OSDFontAbilityXml::writeElement(TiXmlNode& parent, const OSDFontAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "OSDFontAbility");
    writeContent(element, ability);
    return element;
}

bool OSDFontAbilityXml::readElement(const TiXmlElement& element, OSDFontAbility& ability)
{
    const TiXmlElement* fonts = element.FirstChildElement("OSDFontTypeList");
    const TiXmlElement* colors = element.FirstChildElement("OSDColorList");
    const TiXmlElement* inverseColors = element.FirstChildElement("OSDInverseColorList");
    const TiXmlElement* alphas = element.FirstChildElement("OSDAlphaList");
    if (fonts == nullptr || colors == nullptr || inverseColors == nullptr || alphas == nullptr) return false;

    OSDFontAbility read;
    const TiXmlElement* item = fonts->FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        OSDFontType font;
        font.setFontId(frame::intOf(*item, "fontId", 0));
        font.setDescription(frame::textOf(*item, "description", ""));
        read.getOSDFontTypeList().push_back(std::move(font));
    }

    readColors(*colors, read.getOSDColorList());
    readColors(*inverseColors, read.getOSDInverseColorList());

    for (item = alphas->FirstChildElement(); item != nullptr; item = item->NextSiblingElement())
    {
        OSDAlpha alpha;
        alpha.setAlpha(frame::intOf(*item, "alpha", 0));
        read.getOSDAlphaList().push_back(alpha);
    }

    ability = std::move(read);
    return true;
}

void OSDFontAbilityXml::writeContent(TiXmlElement& element, const OSDFontAbility& ability)
{
    TiXmlElement& fonts = frame::appendElement(element, "OSDFontTypeList");
    for (const OSDFontType& font : ability.getOSDFontTypeList())
    {
        TiXmlElement& item = frame::appendElement(fonts, "OSDFontType");
        frame::setInt(item, "fontId", font.getFontId());
        frame::setText(item, "description", font.getDescription());
    }

    writeColors(frame::appendElement(element, "OSDColorList"), "OSDColor", ability.getOSDColorList());
    writeColors(frame::appendElement(element, "OSDInverseColorList"), "OSDInverseColor",
                ability.getOSDInverseColorList());

    TiXmlElement& alphas = frame::appendElement(element, "OSDAlphaList");
    for (const OSDAlpha& alpha : ability.getOSDAlphaList())
        frame::appendInt(alphas, "OSDAlpha", "alpha", alpha.getAlpha());
}
