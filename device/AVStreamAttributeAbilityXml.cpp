// <AVStreamAttributeAbility>
//     <StreamMode value="1" />
//     <FrameSkipIntervalList>
//         <FrameSkipInterval value="2" />
//     </FrameSkipIntervalList>
//     <SVCStreamIDList>
//         <SVCStreamID value="3" />
//     </SVCStreamIDList>
// </AVStreamAttributeAbility>
//
// The node form has the mode in an attribute of the root, and the numbers in attributes with the names of their items:
//
// <AVStreamAttributeAbility StreamMode="1">
//     <FrameSkipIntervalList>
//         <FrameSkipInterval FrameSkipInterval="2" />
//     </FrameSkipIntervalList>
//     <SVCStreamIDList>
//         <SVCStreamID SVCStreamID="3" />
//     </SVCStreamIDList>
// </AVStreamAttributeAbility>
//
// Peers of either kind know no other place.

#include "device/AVStreamAttributeAbilityXml.h"

#include "core/Frame.h"
#include "device/AbilitySteps.h"

#include <vector>

namespace
{

void writeNumbers(SafePointer<DomainXmlNode>& node, const char* container, const char* name,
                  const std::vector<int>& numbers)
{
    SafePointer<DomainXmlNode> list = frame::appendNode(node, container);
    for (const int number : numbers)
        frame::appendNode(list, name)->setProperty(name, number);
}

/// Of every child, whatever its name.
std::vector<int> readNumbers(const SafePointer<DomainXmlNode>& node, const char* container, const char* name)
{
    std::vector<int> numbers;
    SafePointer<DomainXmlNode> list;
    TiXmlElement* item = node->getConfigNode(container, list) ? frame::firstChild(list) : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement())
        numbers.push_back(frame::intProperty(frame::nodeOf(*item), name, 0));
    return numbers;
}

} // namespace

AVStreamAttributeAbilityXml::AVStreamAttributeAbilityXml() = default;

AVStreamAttributeAbilityXml::~AVStreamAttributeAbilityXml() = default;

void AVStreamAttributeAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool AVStreamAttributeAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AVStreamAttributeAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "AVStreamAttributeAbility", document_, node_) && parseXmlNode();
}

bool AVStreamAttributeAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& AVStreamAttributeAbilityXml::writeElement(TiXmlNode& parent, const AVStreamAttributeAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "AVStreamAttributeAbility");
    frame::appendInt(element, "StreamMode", "value", ability.getStreamMode());
    frame::appendInts(element, "FrameSkipIntervalList", "FrameSkipInterval", "value",
                      ability.getFrameSkipIntervalList());
    frame::appendInts(element, "SVCStreamIDList", "SVCStreamID", "value", ability.getSVCStreamIDList());
    return element;
}

bool AVStreamAttributeAbilityXml::readElement(const TiXmlElement& element, AVStreamAttributeAbility& ability)
{
    ability.setStreamMode(frame::childIntOf(element, "StreamMode", "value", ability.getStreamMode()));
    frame::readInts(element, "FrameSkipIntervalList", "FrameSkipInterval", "value", ability.getFrameSkipIntervalList());
    frame::readInts(element, "SVCStreamIDList", "SVCStreamID", "value", ability.getSVCStreamIDList());
    return true;
}

bool AVStreamAttributeAbilityXml::createDomainXmlNode(const AVStreamAttributeAbility& ability,
                                                      SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("StreamMode", ability.getStreamMode());
    writeNumbers(node, "FrameSkipIntervalList", "FrameSkipInterval", ability.getFrameSkipIntervalList());
    writeNumbers(node, "SVCStreamIDList", "SVCStreamID", ability.getSVCStreamIDList());
    return true;
}

bool AVStreamAttributeAbilityXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                     AVStreamAttributeAbility& ability) const
{
    if (!node) return false;

    ability.setStreamMode(frame::intProperty(node, "StreamMode", 0,
                                             "AVStreamAttributeAbilityXml::parseDomainXmlNode get StreamMode failed "));
    ability.setFrameSkipIntervalList(readNumbers(node, "FrameSkipIntervalList", "FrameSkipInterval"));
    ability.setSVCStreamIDList(readNumbers(node, "SVCStreamIDList", "SVCStreamID"));
    return true;
}

bool AVStreamAttributeAbilityXml::createXmlString(const AVStreamAttributeAbility& ability, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AVStreamAttributeAbility");
    return createDomainXmlNode(ability, node) && DomainXmlNode::toString(node, text);
}

bool AVStreamAttributeAbilityXml::parseXmlString(const std::string& text, AVStreamAttributeAbility& ability) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AVStreamAttributeAbility", node) && parseDomainXmlNode(node, ability);
}
