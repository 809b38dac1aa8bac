// <RecordStreamResponseCommand ManagerId="1" ConsumerId="2">
//     <StreamAddr IP="192.0.2.1" Port="554" IPProtoVar="1" />
// </RecordStreamResponseCommand>

#include "commands/RecordStreamResponseXml.h"

#include "commands/AddressSteps.h"
#include "core/Frame.h"

RecordStreamResponseXml::RecordStreamResponseXml() = default;

RecordStreamResponseXml::~RecordStreamResponseXml() = default;

void RecordStreamResponseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "RecordStreamResponseCommand");
    frame::setInt(element, "ManagerId", managerId_);
    frame::setInt(element, "ConsumerId", consumerId_);

    frame::writeAddress(element, "StreamAddr", streamAddr_);
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

    frame::readAddress(*element, "StreamAddr", streamAddr_);
    return true;
}
