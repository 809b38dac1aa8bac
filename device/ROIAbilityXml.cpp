// <ROIAbility ROIMaxNum="8" ROIMaxScale="50" ROIMaxLevel="6">
//     <LevelQPMap Level="1" QP="-5" />
// </ROIAbility>

#include "device/ROIAbilityXml.h"

#include "core/Frame.h"

#include <map>
#include <utility>

ROIAbilityXml::ROIAbilityXml() = default;

ROIAbilityXml::~ROIAbilityXml() = default;

void ROIAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool ROIAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ROIAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "ROIAbility", document_, node_) && parseXmlNode();
}

bool ROIAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& ROIAbilityXml::writeElement(TiXmlNode& parent, const ROIAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "ROIAbility");
    frame::setInt(element, "ROIMaxNum", ability.getROIMaxNum());
    frame::setInt(element, "ROIMaxScale", ability.getROIMaxScale());
    frame::setInt(element, "ROIMaxLevel", ability.getROIMaxLevel());
    for (const auto& entry : ability.getLevelQPMap())
    {
        TiXmlElement& item = frame::appendElement(element, "LevelQPMap");
        frame::setInt(item, "Level", entry.first);
        frame::setInt(item, "QP", entry.second);
    }
    return element;
}

bool ROIAbilityXml::readElement(const TiXmlElement& element, ROIAbility& ability)
{
    ability.setROIMaxNum(frame::intOf(element, "ROIMaxNum", ability.getROIMaxNum()));
    ability.setROIMaxScale(frame::intOf(element, "ROIMaxScale", ability.getROIMaxScale()));
    ability.setROIMaxLevel(frame::intOf(element, "ROIMaxLevel", ability.getROIMaxLevel()));

    const TiXmlElement* item = element.FirstChildElement();
    for (; item != nullptr; item = item->NextSiblingElement())
        ability.getLevelQPMap()[frame::intOf(*item, "Level", 0)] = frame::intOf(*item, "QP", 0);
    return true;
}

bool ROIAbilityXml::createDomainXmlNode(const ROIAbility& ability, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("ROIMaxNum", ability.getROIMaxNum());
    node->setProperty("ROIMaxScale", ability.getROIMaxScale());
    node->setProperty("ROIMaxLevel", ability.getROIMaxLevel());
    for (const auto& entry : ability.getLevelQPMap())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "LevelQPMap");
        item->setProperty("Level", entry.first);
        item->setProperty("QP", entry.second);
    }
    return true;
}

bool ROIAbilityXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ROIAbility& ability) const
{
    if (!node) return false;

    ability.setROIMaxNum(frame::intProperty(node, "ROIMaxNum", 0));
    ability.setROIMaxScale(frame::intProperty(node, "ROIMaxScale", 0));
    ability.setROIMaxLevel(frame::intProperty(node, "ROIMaxLevel", 0));

    std::map<int, int> map;
    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> entry = frame::nodeOf(*item);
        map[frame::intProperty(entry, "Level", 0)] = frame::intProperty(entry, "QP", 0);
    }
    ability.getLevelQPMap() = std::move(map);
    return true;
}

bool ROIAbilityXml::createXmlString(const ROIAbility& ability, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ROIAbility");
    return createDomainXmlNode(ability, node) && DomainXmlNode::toString(node, text);
}

bool ROIAbilityXml::parseXmlString(const std::string& text, ROIAbility& ability) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ROIAbility", node) && parseDomainXmlNode(node, ability);
}
