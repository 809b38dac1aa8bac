// <LiveVideoChannel ChannelID="1" DeviceID="D1" />

#include "display/LiveVideoChannelXml.h"

#include "core/Frame.h"

LiveVideoChannelXml::LiveVideoChannelXml() = default;

LiveVideoChannelXml::~LiveVideoChannelXml() = default;

void LiveVideoChannelXml::createXmlNode()
{
    writeElement(document_, channel_);
}

bool LiveVideoChannelXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool LiveVideoChannelXml::parseXmlString()
{
    return frame::parseRoot(text_, "LiveVideoChannel", document_, node_) && parseXmlNode();
}

bool LiveVideoChannelXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, channel_);
}

TiXmlElement& LiveVideoChannelXml::writeElement(TiXmlNode& parent, const LiveVideoChannel& channel)
{
    TiXmlElement& element = frame::appendElement(parent, "LiveVideoChannel");
    frame::setInt(element, "ChannelID", channel.getChannelID());
    frame::setText(element, "DeviceID", channel.getDeviceID());
    return element;
}

bool LiveVideoChannelXml::readElement(const TiXmlElement& element, LiveVideoChannel& channel)
{
    channel.setChannelID(frame::intOf(element, "ChannelID", channel.getChannelID()));
    channel.setDeviceID(frame::textOf(element, "DeviceID", ""));
    return true;
}
