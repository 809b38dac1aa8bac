// <StreamEncodeAbility>
//     <VideoResolutionList>
//         <VideoResolution VideoHeight="1080" VideoWidth="1920" ResolutionName="1080P" />
//     </VideoResolutionList>
//     <EncoderType value="1" />
// </StreamEncodeAbility>
//
// The node form has the encoder type in an attribute of the root; peers of either kind know no other place:
//
// <StreamEncodeAbility EncoderType="1">
//     <VideoResolutionList>
//         <VideoResolution VideoHeight="1080" VideoWidth="1920" ResolutionName="1080P" />
//     </VideoResolutionList>
// </StreamEncodeAbility>

#include "device/StreamEncodeAbilityXml.h"

#include "core/Frame.h"
#include "device/AbilitySteps.h"
#include "device/VideoResolutionXml.h"

#include <utility>
#include <vector>

StreamEncodeAbilityXml::StreamEncodeAbilityXml() = default;

StreamEncodeAbilityXml::~StreamEncodeAbilityXml() = default;

void StreamEncodeAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool StreamEncodeAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool StreamEncodeAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "StreamEncodeAbility", document_, node_) && parseXmlNode();
}

bool StreamEncodeAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& StreamEncodeAbilityXml::writeElement(TiXmlNode& parent, const StreamEncodeAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "StreamEncodeAbility");
    VideoResolutionXml::writeList(element, "VideoResolutionList", ability.getVideoResolutionList());
    frame::appendInt(element, "EncoderType", "value", ability.getEncoderType());
    return element;
}

bool StreamEncodeAbilityXml::readElement(const TiXmlElement& element, StreamEncodeAbility& ability)
{
    if (!VideoResolutionXml::readList(element, "VideoResolutionList", ability.getVideoResolutionList())) return false;
    ability.setEncoderType(frame::childIntOf(element, "EncoderType", "value", ability.getEncoderType()));
    return true;
}

bool StreamEncodeAbilityXml::createDomainXmlNode(const StreamEncodeAbility& ability,
                                                 SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("EncoderType", ability.getEncoderType());

    const VideoResolutionXml codec;
    SafePointer<DomainXmlNode> list = frame::appendNode(node, "VideoResolutionList");
    for (const VideoResolution& resolution : ability.getVideoResolutionList())
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(list, "VideoResolution");
        if (!codec.createDomainXmlNode(resolution, item)) return false;
    }
    return true;
}

bool StreamEncodeAbilityXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                StreamEncodeAbility& ability) const
{
    if (!node) return false;

    ability.setEncoderType(frame::intProperty(node, "EncoderType", 0,
                                              "StreamEncodeAbilityXml::parseDomainXmlNode get EncoderType failed "));

    const VideoResolutionXml codec;
    std::vector<VideoResolution> resolutions;
    SafePointer<DomainXmlNode> list;
    TiXmlElement* item = node->getConfigNode("VideoResolutionList", list) ? frame::firstChild(list) : nullptr;
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoResolution resolution;
        if (!codec.parseDomainXmlNode(frame::nodeOf(*item), resolution)) return false;
        resolutions.push_back(std::move(resolution));
    }
    ability.getVideoResolutionList() = std::move(resolutions);
    return true;
}

bool StreamEncodeAbilityXml::createXmlString(const StreamEncodeAbility& ability, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("StreamEncodeAbility");
    return createDomainXmlNode(ability, node) && DomainXmlNode::toString(node, text);
}

bool StreamEncodeAbilityXml::parseXmlString(const std::string& text, StreamEncodeAbility& ability) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "StreamEncodeAbility", node) && parseDomainXmlNode(node, ability);
}
