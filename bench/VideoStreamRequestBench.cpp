#include "bench/Benchmarks.h"
#include "bench/Comparison.h"
#include "bench/Floor.h"
#include "commands/VideoStreamRequestXml.h"

#include <utility>

namespace
{

struct Request
{
    int cameraId = 0;
    int streamId = 0;
    int mode = 0;
    int dataChannelId = 0;
};

std::string writeFloor(const Request& request)
{
    TiXmlDocument document;
    TiXmlElement& element = bare::appendElement(document, "VideoStreamRequestCommand");
    element.SetAttribute("CameraId", request.cameraId);
    element.SetAttribute("StreamId", request.streamId);
    element.SetAttribute("StreamFormat", request.mode);
    element.SetAttribute("DataChannelId", request.dataChannelId);
    return bare::print(document);
}

bool readFloor(const std::string& text, Request& request)
{
    TiXmlDocument document;
    const TiXmlElement* element = bare::parse(document, text, "VideoStreamRequestCommand");
    if (element == nullptr) return false;

    request.cameraId = bare::intOf(*element, "CameraId", request.cameraId);
    request.streamId = bare::intOf(*element, "StreamId", request.streamId);
    request.mode = bare::intOf(*element, "StreamFormat", request.mode);
    request.dataChannelId = bare::intOf(*element, "DataChannelId", request.dataChannelId);
    return true;
}

std::string writeDocument(const Request& request)
{
    VideoStreamRequestXml codec;
    codec.setCameraId(request.cameraId);
    codec.setStreamId(request.streamId);
    codec.setMode(request.mode);
    codec.setDataChannelId(request.dataChannelId);
    codec.createXmlString();
    return std::move(codec.getXmlString());
}

bool readDocument(const std::string& text, Request& request)
{
    VideoStreamRequestXml codec;
    codec.setXmlString(text);
    if (!codec.parseXmlString()) return false;

    request.cameraId = codec.getCameraId();
    request.streamId = codec.getStreamId();
    request.mode = codec.getMode();
    request.dataChannelId = codec.getDataChannelId();
    return true;
}

} // namespace

void addVideoStreamRequest()
{
    compare<Request>("VideoStreamRequest.document", {17, 2, 3, 4711}, "<VideoStreamRequestCommand />",
                     {writeFloor, readFloor}, {writeDocument, readDocument});
}
