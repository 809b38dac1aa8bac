// <WebParam WebServerPort="8080" />

#include "network/WebParamXml.h"

#include "core/Frame.h"

WebParamXml::WebParamXml() = default;

WebParamXml::~WebParamXml() = default;

void WebParamXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "WebParam");
    frame::setInt(element, "WebServerPort", webServerPort_);
}

bool WebParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool WebParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "WebParam", document_, node_) && parseXmlNode();
}

bool WebParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    webServerPort_ = frame::uint16Of(*element, "WebServerPort", webServerPort_);
    return true;
}
