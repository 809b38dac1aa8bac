// <RS485ChannelRequestCommand DataChannelId="1">
//     <RS485Device ComId="1" ComName="Dome bus" ... />
// </RS485ChannelRequestCommand>

#include "ptz/RS485ChannelRequestXml.h"

#include "core/Frame.h"
#include "ptz/RS485DeviceXml.h"

RS485ChannelRequestXml::RS485ChannelRequestXml() = default;

RS485ChannelRequestXml::~RS485ChannelRequestXml() = default;

void RS485ChannelRequestXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "RS485ChannelRequestCommand");
    frame::setInt(element, "DataChannelId", dataChannelId_);

    RS485DeviceXml::writeElement(element, port_);
}

bool RS485ChannelRequestXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RS485ChannelRequestXml::parseXmlString()
{
    return frame::parseRoot(text_, "RS485ChannelRequestCommand", document_, node_) && parseXmlNode();
}

bool RS485ChannelRequestXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    dataChannelId_ = frame::intOf(*element, "DataChannelId", dataChannelId_);

    const TiXmlElement* child = element->FirstChildElement("RS485Device");
    if (child != nullptr)
    {
        RS485Device port;
        if (!RS485DeviceXml::readElement(*child, port)) return false;
        port_ = port;
    }
    return true;
}
