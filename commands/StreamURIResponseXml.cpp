// <StreamURIResponseInfo StreamURI="rtsp://192.0.2.17/1" />

#include "commands/StreamURIResponseXml.h"

#include "core/Frame.h"

StreamURIResponseXml::StreamURIResponseXml() = default;

StreamURIResponseXml::~StreamURIResponseXml() = default;

void StreamURIResponseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "StreamURIResponseInfo");
    frame::setText(element, "StreamURI", streamURI_);
}

bool StreamURIResponseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool StreamURIResponseXml::parseXmlString()
{
    return frame::parseRoot(text_, "StreamURIResponseInfo", document_, node_) && parseXmlNode();
}

bool StreamURIResponseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    streamURI_ = frame::textOf(*element, "StreamURI", streamURI_);
    return true;
}
