// <DataChannelRequestCommand TransferProtocol="1" ChannelType="2" />

#include "commands/DataChannelRequestXml.h"

#include "core/Frame.h"

DataChannelRequestXml::DataChannelRequestXml() = default;

DataChannelRequestXml::~DataChannelRequestXml() = default;

void DataChannelRequestXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "DataChannelRequestCommand");
    frame::setInt(element, "TransferProtocol", transferProtocol_);
    frame::setInt(element, "ChannelType", channelType_);
}

bool DataChannelRequestXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DataChannelRequestXml::parseXmlString()
{
    return frame::parseRoot(text_, "DataChannelRequestCommand", document_, node_) && parseXmlNode();
}

bool DataChannelRequestXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    transferProtocol_ = frame::intOf(*element, "TransferProtocol", transferProtocol_);
    channelType_ = frame::intOf(*element, "ChannelType", channelType_);
    return true;
}
