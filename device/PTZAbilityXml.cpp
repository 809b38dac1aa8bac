// <PTZAbility InternalPTZFlag="true" ThreeDimensionalPositioningFlag="true" MaxPresetCount="255" MaxScanCount="5"
//             MaxAutoStudyCount="6" MaxTourCount="8" BrushFlag="true" LightFlag="true" InfraredFlag="true">
//     <PTZProtocolList>
//         <PTZProtocol ProtocolId="1" ProtocolName="Dome" />
//     </PTZProtocolList>
// </PTZAbility>

#include "device/PTZAbilityXml.h"

#include "core/Frame.h"
#include "ptz/PTZProtocolXml.h"

#include <utility>

PTZAbilityXml::PTZAbilityXml() = default;

PTZAbilityXml::~PTZAbilityXml() = default;

void PTZAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool PTZAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool PTZAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "PTZAbility", document_, node_) && parseXmlNode();
}

bool PTZAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& PTZAbilityXml::writeElement(TiXmlNode& parent, const PTZAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "PTZAbility");
    frame::setFlag(element, "InternalPTZFlag", ability.getInternalPTZFlag());
    frame::setFlag(element, "ThreeDimensionalPositioningFlag", ability.getThreeDimensionalPositioningFlag());
    frame::setInt(element, "MaxPresetCount", ability.getMaxPresetCount());
    frame::setInt(element, "MaxScanCount", ability.getMaxScanCount());
    frame::setInt(element, "MaxAutoStudyCount", ability.getMaxAutoStudyCount());
    frame::setInt(element, "MaxTourCount", ability.getMaxTourCount());
    frame::setFlag(element, "BrushFlag", ability.getBrushFlag());
    frame::setFlag(element, "LightFlag", ability.getLightFlag());
    frame::setFlag(element, "InfraredFlag", ability.getInfraredFlag());

    TiXmlElement& protocols = frame::appendElement(element, "PTZProtocolList");
    for (const PTZProtocol& protocol : ability.getPTZProtocolList())
        PTZProtocolXml::writeElement(protocols, protocol);
    return element;
}

bool PTZAbilityXml::readElement(const TiXmlElement& element, PTZAbility& ability)
{
    ability.setInternalPTZFlag(frame::flagOf(element, "InternalPTZFlag", ability.getInternalPTZFlag()));
    ability.setThreeDimensionalPositioningFlag(
        frame::flagOf(element, "ThreeDimensionalPositioningFlag", ability.getThreeDimensionalPositioningFlag()));
    ability.setMaxPresetCount(frame::intOf(element, "MaxPresetCount", ability.getMaxPresetCount()));
    ability.setMaxScanCount(frame::intOf(element, "MaxScanCount", ability.getMaxScanCount()));
    ability.setMaxAutoStudyCount(frame::intOf(element, "MaxAutoStudyCount", ability.getMaxAutoStudyCount()));
    ability.setMaxTourCount(frame::intOf(element, "MaxTourCount", ability.getMaxTourCount()));
    ability.setBrushFlag(frame::flagOf(element, "BrushFlag", ability.getBrushFlag()));
    ability.setLightFlag(frame::flagOf(element, "LightFlag", ability.getLightFlag()));
    ability.setInfraredFlag(frame::flagOf(element, "InfraredFlag", ability.getInfraredFlag()));

    const TiXmlElement* item = frame::firstItem(element, "PTZProtocolList", "PTZProtocol");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        PTZProtocol protocol;
        if (!PTZProtocolXml::readElement(*item, protocol)) return false;
        ability.getPTZProtocolList().push_back(std::move(protocol));
    }
    return true;
}
