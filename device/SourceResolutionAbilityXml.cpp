// <SourceResolutionAbility>
//     <VideoSystem VideoSystemId="1" VideoSystemName="PAL" />
//     <VideoResolutionList>
//         <VideoResolution VideoHeight="576" VideoWidth="704" ResolutionName="D1" />
//     </VideoResolutionList>
// </SourceResolutionAbility>

#include "device/SourceResolutionAbilityXml.h"

#include "core/Frame.h"
#include "device/VideoResolutionXml.h"
#include "device/VideoSystemXml.h"

#include <utility>

SourceResolutionAbilityXml::SourceResolutionAbilityXml() = default;

SourceResolutionAbilityXml::~SourceResolutionAbilityXml() = default;

void SourceResolutionAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool SourceResolutionAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SourceResolutionAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "SourceResolutionAbility", document_, node_) && parseXmlNode();
}

bool SourceResolutionAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& SourceResolutionAbilityXml::writeElement(TiXmlNode& parent, const SourceResolutionAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "SourceResolutionAbility");
    VideoSystemXml::writeElement(element, ability.getVideoSystem());
    VideoResolutionXml::writeList(element, "VideoResolutionList", ability.getSourceResolutionList());
    return element;
}

bool SourceResolutionAbilityXml::readElement(const TiXmlElement& element, SourceResolutionAbility& ability)
{
    const TiXmlElement* child = element.FirstChildElement("VideoSystem");
    if (child != nullptr)
    {
        VideoSystem system;
        if (!VideoSystemXml::readElement(*child, system)) return false;
        ability.getVideoSystem() = std::move(system);
    }

    return VideoResolutionXml::readList(element, "VideoResolutionList", ability.getSourceResolutionList());
}
