// <DataChannelResponseCommand DataChannelId="1" />

#include "commands/DataChannelResponseXml.h"

#include "core/Frame.h"

DataChannelResponseXml::DataChannelResponseXml() = default;

DataChannelResponseXml::~DataChannelResponseXml() = default;

void DataChannelResponseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "DataChannelResponseCommand");
    frame::setInt(element, "DataChannelId", dataChannelId_);
}

bool DataChannelResponseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DataChannelResponseXml::parseXmlString()
{
    return frame::parseRoot(text_, "DataChannelResponseCommand", document_, node_) && parseXmlNode();
}

bool DataChannelResponseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    dataChannelId_ = frame::intOf(*element, "DataChannelId", dataChannelId_);
    return true;
}
