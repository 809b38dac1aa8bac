// <VideoStreamResponseCommand ConsumerId="1">
//     <StreamAddr IP="192.0.2.17" Port="9000" IPProtoVar="4" />
//     <AVStreamParamList>
//         <AVStreamParam ... />
//     </AVStreamParamList>
// </VideoStreamResponseCommand>

#include "commands/VideoStreamResponseXml.h"

#include "commands/AddressSteps.h"
#include "core/Frame.h"
#include "media/AVStreamParamXml.h"

#include <vector>

VideoStreamResponseXml::VideoStreamResponseXml() = default;

VideoStreamResponseXml::~VideoStreamResponseXml() = default;

void VideoStreamResponseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "VideoStreamResponseCommand");
    frame::setInt(element, "ConsumerId", consumerId_);
    frame::writeAddress(element, "StreamAddr", streamAddr_);
    // Peers write no list here, though they read one.
}

bool VideoStreamResponseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoStreamResponseXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoStreamResponseCommand", document_, node_) && parseXmlNode();
}

bool VideoStreamResponseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    frame::readAddress(*element, "StreamAddr", streamAddr_);

    const TiXmlElement* list = element->FirstChildElement("AVStreamParamList");
    if (list != nullptr)
    {
        std::vector<AVStreamParam> streams;
        if (!AVStreamParamXml::readElement(*list, streams)) return false;
        if (!streams.empty()) avStreamParam_ = streams.front();
    }
    return true;
}
