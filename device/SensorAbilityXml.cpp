// <SensorAbility>
//     <SensorController>
//         <SensorControllerOpenType type="1" />
//     </SensorController>
// </SensorAbility>

#include "device/SensorAbilityXml.h"

#include "core/Frame.h"

#include <utility>

SensorAbilityXml::SensorAbilityXml() = default;

SensorAbilityXml::~SensorAbilityXml() noexcept = default;

void SensorAbilityXml::createXmlNode()
{
    tree_ = frame::makeNode("SensorAbility");
    element_ = tree_->getXmlNode();
    writeContent(*element_, ability_);
}

bool SensorAbilityXml::createXmlString()
{
    createXmlNode();
    return DomainXmlNode::toString(tree_, text_);
}

bool SensorAbilityXml::parseXmlString()
{
    if (!DomainXmlNode::parse(text_, "SensorAbility", tree_)) return false;
    element_ = tree_->getXmlNode();
    return parseXmlNode();
}

bool SensorAbilityXml::parseXmlNode()
{
    return element_ != nullptr && readElement(*element_, ability_);
}

TiXmlElement& SensorAbilityXml::writeElement(TiXmlNode& parent, const SensorAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "SensorAbility");
    writeContent(element, ability);
    return element;
}

bool SensorAbilityXml::readElement(const TiXmlElement& element, SensorAbility& ability)
{
    const TiXmlElement* list = element.FirstChildElement("SensorController");
    if (list == nullptr) return false;

    SensorAbility read;
    const TiXmlElement* item = list->FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        SensorControllerOpenType type;
        type.setType(frame::intOf(*item, "type", 0));
        read.getSensorControllerOpenTypeList().push_back(type);
    }
    ability = std::move(read);
    return true;
}

void SensorAbilityXml::writeContent(TiXmlElement& element, const SensorAbility& ability)
{
    TiXmlElement& list = frame::appendElement(element, "SensorController");
    for (const SensorControllerOpenType& type : ability.getSensorControllerOpenTypeList())
    {
        TiXmlElement& item = frame::appendElement(list, "SensorControllerOpenType");
        frame::setInt(item, "type", type.getType());
    }
}
