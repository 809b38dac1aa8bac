// <AVStreamAbility>
//     <StreamEncodeAbilityList>
//         <StreamEncodeAbility> ... </StreamEncodeAbility>
//     </StreamEncodeAbilityList>
//     <StreamId value="1" />
//     <AVStreamAttributeAbility> ... </AVStreamAttributeAbility>
//     <SupportROI value="true" />
//     <ROIAbility ROIMaxNum="8" ROIMaxScale="50" ROIMaxLevel="6"> ... </ROIAbility>
// </AVStreamAbility>

#include "device/AVStreamAbilityXml.h"

#include "core/Frame.h"
#include "device/AVStreamAttributeAbilityXml.h"
#include "device/AbilitySteps.h"
#include "device/ROIAbilityXml.h"
#include "device/StreamEncodeAbilityXml.h"

#include <cstring>
#include <utility>
#include <vector>

namespace
{

const TiXmlElement* elementBehind(const TiXmlElement* element)
{
    return element != nullptr ? element->NextSiblingElement() : nullptr;
}

} // namespace

AVStreamAbilityXml::AVStreamAbilityXml() = default;

AVStreamAbilityXml::~AVStreamAbilityXml() = default;

void AVStreamAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool AVStreamAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AVStreamAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "AVStreamAbility", document_, node_) && parseXmlNode();
}

bool AVStreamAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& AVStreamAbilityXml::writeElement(TiXmlNode& parent, const AVStreamAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "AVStreamAbility");
    TiXmlElement& encodings = frame::appendElement(element, "StreamEncodeAbilityList");
    for (const StreamEncodeAbility& encoding : ability.getStreamEncodeAbilityList())
        StreamEncodeAbilityXml::writeElement(encodings, encoding);

    frame::appendInt(element, "StreamId", "value", ability.getStreamId());
    AVStreamAttributeAbilityXml::writeElement(element, ability.getAVStreamAttributeAbility());
    frame::appendFlag(element, "SupportROI", "value", ability.getSupportROI());
    ROIAbilityXml::writeElement(element, ability.getROIAbility());
    return element;
}

bool AVStreamAbilityXml::readElement(const TiXmlElement& element, AVStreamAbility& ability)
{
    const TiXmlElement* item = frame::firstItem(element, "StreamEncodeAbilityList", "StreamEncodeAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        StreamEncodeAbility encoding;
        if (!StreamEncodeAbilityXml::readElement(*item, encoding)) return false;
        ability.getStreamEncodeAbilityList().push_back(std::move(encoding));
    }

    ability.setStreamId(frame::childIntOf(element, "StreamId", "value", ability.getStreamId()));

    // The peers take the two records by their place, not by their name: a device that leaves one out has the next
    // element read in its stead.
    AVStreamAttributeAbility attribute;
    const TiXmlElement* child = elementBehind(element.FirstChildElement("StreamId"));
    if (child == nullptr)
        attribute.setStreamMode(1);
    else if (!AVStreamAttributeAbilityXml::readElement(*child, attribute))
        return false;
    ability.getAVStreamAttributeAbility() = std::move(attribute);

    // Of the texts for true, "true" is the only one that the peers take here.
    const TiXmlElement* support = element.FirstChildElement("SupportROI");
    const char* text = support != nullptr ? frame::attributeOf(*support, "value") : nullptr;
    if (text != nullptr) ability.setSupportROI(std::strcmp(text, "true") == 0);

    ROIAbility regions;
    child = elementBehind(support);
    if (child != nullptr && !ROIAbilityXml::readElement(*child, regions)) return false;
    ability.getROIAbility() = std::move(regions);
    return true;
}

bool AVStreamAbilityXml::createDomainXmlNode(const AVStreamAbility& ability, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    const StreamEncodeAbilityXml encodingCodec;
    SafePointer<DomainXmlNode> encodings = frame::appendNode(node, "StreamEncodeAbilityList");
    for (const StreamEncodeAbility& encoding : ability.getStreamEncodeAbilityList())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(encodings, "StreamEncodeAbility");
        if (!encodingCodec.createDomainXmlNode(encoding, item)) return false;
    }

    frame::appendNode(node, "StreamId")->setProperty("value", ability.getStreamId());
    SafePointer<DomainXmlNode> attribute = frame::appendNode(node, "AVStreamAttributeAbility");
    if (!AVStreamAttributeAbilityXml().createDomainXmlNode(ability.getAVStreamAttributeAbility(), attribute))
        return false;

    frame::appendNode(node, "SupportROI")->setProperty("value", ability.getSupportROI());
    SafePointer<DomainXmlNode> regions = frame::appendNode(node, "ROIAbility");
    return ROIAbilityXml().createDomainXmlNode(ability.getROIAbility(), regions);
}

bool AVStreamAbilityXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, AVStreamAbility& ability) const
{
    if (!node) return false;

    const StreamEncodeAbilityXml encodingCodec;
    std::vector<StreamEncodeAbility> encodings;
    SafePointer<DomainXmlNode> list;
    TiXmlElement* item = node->getConfigNode("StreamEncodeAbilityList", list) ? frame::firstChild(list) : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        StreamEncodeAbility encoding;
        if (!encodingCodec.parseDomainXmlNode(frame::nodeOf(*item), encoding)) return false;
        encodings.push_back(std::move(encoding));
    }
    ability.getStreamEncodeAbilityList() = std::move(encodings);

    // Where a child is missing its node is empty, and the record stays fresh.
    SafePointer<DomainXmlNode> id;
    ability.setStreamId(node->getConfigNode("StreamId", id) ? frame::intProperty(id, "value", 0) : 0);

    SafePointer<DomainXmlNode> attributeNode;
    AVStreamAttributeAbility attribute;
    node->getConfigNode("AVStreamAttributeAbility", attributeNode);
    AVStreamAttributeAbilityXml().parseDomainXmlNode(attributeNode, attribute);
    ability.getAVStreamAttributeAbility() = std::move(attribute);

    SafePointer<DomainXmlNode> support;
    ability.setSupportROI(node->getConfigNode("SupportROI", support) && frame::flagProperty(support, "value", false));

    SafePointer<DomainXmlNode> regionsNode;
    ROIAbility regions;
    node->getConfigNode("ROIAbility", regionsNode);
    ROIAbilityXml().parseDomainXmlNode(regionsNode, regions);
    ability.getROIAbility() = std::move(regions);
    return true;
}

bool AVStreamAbilityXml::createXmlString(const AVStreamAbility& ability, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("AVStreamAbility");
    return createDomainXmlNode(ability, node) && DomainXmlNode::toString(node, text);
}

bool AVStreamAbilityXml::parseXmlString(const std::string& text, AVStreamAbility& ability) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "AVStreamAbility", node) && parseDomainXmlNode(node, ability);
}
