// <CMSStreamParam CameraID="1">
//     <VideoEncodeQualityList>
//         <VideoEncodeQuality ... />
//     </VideoEncodeQualityList>
// </CMSStreamParam>

#include "commands/CMSStreamParamXml.h"

#include "core/Frame.h"
#include "media/VideoEncodeQualityXml.h"

CMSStreamParamXml::CMSStreamParamXml() = default;

CMSStreamParamXml::~CMSStreamParamXml() = default;

void CMSStreamParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool CMSStreamParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool CMSStreamParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "CMSStreamParam", document_, node_) && parseXmlNode();
}

bool CMSStreamParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& CMSStreamParamXml::writeElement(TiXmlNode& parent, const CMSStreamParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "CMSStreamParam");
    frame::setInt(element, "CameraID", param.getCameraID());

    TiXmlElement& streams = frame::appendElement(element, "VideoEncodeQualityList");
    for (const VideoEncodeQuality& stream : param.getVideoEncodeQualityList())
        VideoEncodeQualityXml::writeElement(streams, stream);
    return element;
}

bool CMSStreamParamXml::readElement(const TiXmlElement& element, CMSStreamParam& param)
{
    param.setCameraID(frame::intOf(element, "CameraID", 0));

    const TiXmlElement* item = frame::firstItem(element, "VideoEncodeQualityList", "VideoEncodeQuality");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        VideoEncodeQuality stream;
        if (!VideoEncodeQualityXml::readElement(*item, stream)) return false;
        param.getVideoEncodeQualityList().push_back(stream);
    }
    return true;
}
