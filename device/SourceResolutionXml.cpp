// <SourceResolutionList>
//     <SourceResolution CameraID="1" VideoSystemId="1" VideoSystemName="PAL" Name="D1" Height="576" Width="704" />
// </SourceResolutionList>

#include "device/SourceResolutionXml.h"

#include "core/Frame.h"

#include <utility>

SourceResolutionXml::SourceResolutionXml() = default;

SourceResolutionXml::~SourceResolutionXml() = default;

void SourceResolutionXml::createXmlNode()
{
    writeElement(document_, sources_);
}

bool SourceResolutionXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SourceResolutionXml::parseXmlString()
{
    return frame::parseRoot(text_, "SourceResolutionList", document_, node_) && parseXmlNode();
}

bool SourceResolutionXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, sources_);
}

TiXmlElement& SourceResolutionXml::writeElement(TiXmlNode& parent, const std::vector<SourceResolution>& sources)
{
    TiXmlElement& element = frame::appendElement(parent, "SourceResolutionList");
    for (const SourceResolution& source : sources)
    {
        TiXmlElement& item = frame::appendElement(element, "SourceResolution");
        frame::setInt(item, "CameraID", source.getCameraId());
        frame::setInt(item, "VideoSystemId", source.getVideoSystem().getVideoSystemId());
        frame::setText(item, "VideoSystemName", source.getVideoSystem().getVideoSystemName());
        frame::setText(item, "Name", source.getVideoResolution().getResolutionName());
        frame::setInt(item, "Height", source.getVideoResolution().getVideoHeight());
        frame::setInt(item, "Width", source.getVideoResolution().getVideoWidth());
    }
    return element;
}

bool SourceResolutionXml::readElement(const TiXmlElement& element, std::vector<SourceResolution>& sources)
{
    const TiXmlElement* item = frame::firstItem(element, "SourceResolution");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        SourceResolution source;
        source.setCameraId(frame::intOf(*item, "CameraID", 0));
        source.getVideoSystem().setVideoSystemId(frame::intOf(*item, "VideoSystemId", 0));
        source.getVideoSystem().setVideoSystemName(frame::textOf(*item, "VideoSystemName", ""));
        source.getVideoResolution().setResolutionName(frame::textOf(*item, "Name", ""));
        source.getVideoResolution().setVideoHeight(frame::intOf(*item, "Height", 0));
        source.getVideoResolution().setVideoWidth(frame::intOf(*item, "Width", 0));
        sources.push_back(std::move(source));
    }
    return true;
}
