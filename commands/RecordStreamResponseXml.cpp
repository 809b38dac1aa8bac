// <RecordStreamResponseCommand ManagerId="1" ConsumerId="2">
//     <StreamAddr IP="192.0.2.1" Port="554" IPProtoVar="1" />
// </RecordStreamResponseCommand>

#include "commands/RecordStreamResponseXml.h"

#include "core/Frame.h"

RecordStreamResponseXml::RecordStreamResponseXml() = default;

RecordStreamResponseXml::~RecordStreamResponseXml() = default;

void RecordStreamResponseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "RecordStreamResponseCommand");
    frame::setInt(element, "ManagerId", managerId_);
    frame::setInt(element, "ConsumerId", consumerId_);

    TiXmlElement& address = frame::appendElement(element, "StreamAddr");
    frame::setText(address, "IP", streamAddr_.getIP());
    frame::setInt(address, "Port", streamAddr_.getPORT());
    frame::setInt(address, "IPProtoVar", streamAddr_.getIPProtoVer()); // the peers' spelling
}

bool RecordStreamResponseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordStreamResponseXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordStreamResponseCommand", document_, node_) && parseXmlNode();
}

bool RecordStreamResponseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    managerId_ = frame::intOf(*element, "ManagerId", managerId_);
    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);

    const TiXmlElement* address = element->FirstChildElement("StreamAddr");
    if (address != nullptr)
    {
        streamAddr_.setIP(frame::textOf(*address, "IP", streamAddr_.getIP()).c_str());
        streamAddr_.setPORT(frame::uint16Of(*address, "Port", streamAddr_.getPORT()));
        streamAddr_.setIPProtoVer(frame::intOf(*address, "IPProtoVar", streamAddr_.getIPProtoVer()));
    }
    return true;
}
