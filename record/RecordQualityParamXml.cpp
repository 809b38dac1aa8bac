// <RecordQualityParam CameraId="1">
//     <VideoEncodeQuality ... />
//     <AudioEncodeQuality ... />
// </RecordQualityParam>

#include "record/RecordQualityParamXml.h"

#include "core/Frame.h"
#include "media/AudioEncodeQualityXml.h"
#include "media/VideoEncodeQualityXml.h"

RecordQualityParamXml::RecordQualityParamXml() = default;

RecordQualityParamXml::~RecordQualityParamXml() = default;

void RecordQualityParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool RecordQualityParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordQualityParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordQualityParam", document_, node_) && parseXmlNode();
}

bool RecordQualityParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& RecordQualityParamXml::writeElement(TiXmlNode& parent, const RecordQualityParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "RecordQualityParam");
    frame::setInt(element, "CameraId", param.getCameraId());

    VideoEncodeQualityXml::writeElement(element, param.getVideoEncodeQuality());
    AudioEncodeQualityXml::writeElement(element, param.getAudioEncodeQuality());
    return element;
}

bool RecordQualityParamXml::readElement(const TiXmlElement& element, RecordQualityParam& param)
{
    param.setCameraId(frame::intOf(element, "CameraId", 0));

    const TiXmlElement* child = element.FirstChildElement("VideoEncodeQuality");
    if (child != nullptr)
    {
        VideoEncodeQuality video;
        if (!VideoEncodeQualityXml::readElement(*child, video)) return false;
        param.setVideoEncodeQuality(video);
    }

    child = element.FirstChildElement("AudioEncodeQuality");
    if (child != nullptr)
    {
        AudioEncodeQuality audio;
        if (!AudioEncodeQualityXml::readElement(*child, audio)) return false;
        param.setAudioEncodeQuality(audio);
    }
    return true;
}
