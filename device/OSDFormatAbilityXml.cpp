// <OSDFormatAbility>
//     <OSDFormatTypeList>
//         <OSDFormatType formatId="1" description="YYYY-MM-DD" />
//     </OSDFormatTypeList>
// </OSDFormatAbility>

#include "device/OSDFormatAbilityXml.h"

#include "core/Frame.h"

#include <utility>

OSDFormatAbilityXml::OSDFormatAbilityXml() = default;

OSDFormatAbilityXml::~OSDFormatAbilityXml() noexcept = default;

void OSDFormatAbilityXml::createXmlNode()
{
    tree_ = frame::makeNode("OSDFormatAbility");
    element_ = tree_->getXmlNode();
    writeContent(*element_, ability_);
}

bool OSDFormatAbilityXml::createXmlString()
{
    createXmlNode();
    return DomainXmlNode::toString(tree_, text_);
}

bool OSDFormatAbilityXml::parseXmlString()
{
    if (!DomainXmlNode::parse(text_, "OSDFormatAbility", tree_)) return false;
    element_ = tree_->getXmlNode();
    return parseXmlNode();
}

bool OSDFormatAbilityXml::parseXmlNode()
{
    return element_ != nullptr && readElement(*element_, ability_);
}

TiXmlElement& OSDFormatAbilityXml::writeElement(TiXmlNode& parent, const OSDFormatAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "OSDFormatAbility");
    writeContent(element, ability);
    return element;
}

bool OSDFormatAbilityXml::readElement(const TiXmlElement& element, OSDFormatAbility& ability)
{
    const TiXmlElement* list = element.FirstChildElement("OSDFormatTypeList");
    if (list == nullptr) return false;

    OSDFormatAbility read;
    const TiXmlElement* item = list->FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        OSDFormatType type;
        type.setFormatId(frame::intOf(*item, "formatId", 0));
        type.setDescription(frame::textOf(*item, "description", ""));
        read.getOSDFormatTypeList().push_back(std::move(type));
    }
    ability = std::move(read);
    return true;
}

void OSDFormatAbilityXml::writeContent(TiXmlElement& element, const OSDFormatAbility& ability)
{
    TiXmlElement& list = frame::appendElement(element, "OSDFormatTypeList");
    for (const OSDFormatType& type : ability.getOSDFormatTypeList())
    {
        TiXmlElement& item = frame::appendElement(list, "OSDFormatType");
        frame::setInt(item, "formatId", type.getFormatId());
        frame::setText(item, "description", type.getDescription());
    }
}
