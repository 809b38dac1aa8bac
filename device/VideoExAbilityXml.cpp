// <VideoExAbility VideoSystemConfigurableFlag="true">
//     <CameraExAbilityList>
//         <CameraExAbility> ... </CameraExAbility>
//     </CameraExAbilityList>
//     <VideoEncoderAbilityList>
//         <VideoEncoderAbility ...> ... </VideoEncoderAbility>
//     </VideoEncoderAbilityList>
//     <VideoSystemList>
//         <VideoSystem VideoSystemId="1" VideoSystemName="PAL" />
//     </VideoSystemList>
//     <SourceResolutionAbilityList>
//         <SourceResolutionAbility> ... </SourceResolutionAbility>
//     </SourceResolutionAbilityList>
//     <VideoOutAbility userConfigurable="true" IsSupportVideoOut="true" />
// </VideoExAbility>

#include "device/VideoExAbilityXml.h"

#include "core/Frame.h"
#include "device/CameraExAbilityXml.h"
#include "device/SourceResolutionAbilityXml.h"
#include "device/VideoEncoderAbilityXml.h"
#include "device/VideoSystemXml.h"

#include <utility>

VideoExAbilityXml::VideoExAbilityXml() = default;

VideoExAbilityXml::~VideoExAbilityXml() = default;

void VideoExAbilityXml::createXmlNode()
{
    writeElement(document_, ability_);
}

bool VideoExAbilityXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoExAbilityXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoExAbility", document_, node_) && parseXmlNode();
}

bool VideoExAbilityXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, ability_);
}

TiXmlElement& VideoExAbilityXml::writeElement(TiXmlNode& parent, const VideoExAbility& ability)
{
    TiXmlElement& element = frame::appendElement(parent, "VideoExAbility");
    frame::setFlag(element, "VideoSystemConfigurableFlag", ability.getVideoSystemConfigurableFlag());

    TiXmlElement& cameras = frame::appendElement(element, "CameraExAbilityList");
    for (const CameraExAbility& camera : ability.getCameraExAbilityList())
        CameraExAbilityXml::writeElement(cameras, camera);

    TiXmlElement& encoders = frame::appendElement(element, "VideoEncoderAbilityList");
    for (const VideoEncoderAbility& encoder : ability.getVideoEncoderAbilityList())
        VideoEncoderAbilityXml::writeElement(encoders, encoder);

    TiXmlElement& systems = frame::appendElement(element, "VideoSystemList");
    for (const VideoSystem& system : ability.getVideoSystemList())
        VideoSystemXml::writeElement(systems, system);

    TiXmlElement& sources = frame::appendElement(element, "SourceResolutionAbilityList");
    for (const SourceResolutionAbility& source : ability.getSourceResolutionAbilityList())
        SourceResolutionAbilityXml::writeElement(sources, source);

    TiXmlElement& output = frame::appendElement(element, "VideoOutAbility");
    frame::setFlag(output, "userConfigurable", ability.getVideoOutAbility().getVideoOutConfigurable());
    frame::setFlag(output, "IsSupportVideoOut", ability.getVideoOutAbility().getIsSupportVideoOut());
    return element;
}

bool VideoExAbilityXml::readElement(const TiXmlElement& element, VideoExAbility& ability)
{
    ability.setVideoSystemConfigurableFlag(
        frame::flagOf(element, "VideoSystemConfigurableFlag", ability.getVideoSystemConfigurableFlag()));

    const TiXmlElement* item = frame::firstItem(element, "CameraExAbilityList", "CameraExAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        CameraExAbility camera;
        if (!CameraExAbilityXml::readElement(*item, camera)) return false;
        ability.getCameraExAbilityList().push_back(std::move(camera));
    }

    item = frame::firstItem(element, "VideoEncoderAbilityList", "VideoEncoderAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoEncoderAbility encoder;
        if (!VideoEncoderAbilityXml::readElement(*item, encoder)) return false;
        ability.getVideoEncoderAbilityList().push_back(std::move(encoder));
    }

    item = frame::firstItem(element, "VideoSystemList", "VideoSystem");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoSystem system;
        if (!VideoSystemXml::readElement(*item, system)) return false;
        ability.getVideoSystemList().push_back(std::move(system));
    }

    item = frame::firstItem(element, "SourceResolutionAbilityList", "SourceResolutionAbility");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        SourceResolutionAbility source;
        if (!SourceResolutionAbilityXml::readElement(*item, source)) return false;
        ability.getSourceResolutionAbilityList().push_back(std::move(source));
    }

    const TiXmlElement* child = element.FirstChildElement("VideoOutAbility");
    if (child != nullptr)
    {
        VideoOutAbility& output = ability.getVideoOutAbility();
        output.setVideoOutConfigurable(frame::flagOf(*child, "userConfigurable", output.getVideoOutConfigurable()));
        output.setIsSupportVideoOut(frame::flagOf(*child, "IsSupportVideoOut", output.getIsSupportVideoOut()));
    }
    return true;
}
