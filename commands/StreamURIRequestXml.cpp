// <StreamURIRequestInfo UserName="operator" Password="secret" CameraID="1" StreamID="2" RtspTransferProtocol="1">
//     <Addr IP="192.0.2.17" Port="554" IPProtoVar="4" />
// </StreamURIRequestInfo>

#include "commands/StreamURIRequestXml.h"

#include "commands/AddressSteps.h"
#include "core/Frame.h"

StreamURIRequestXml::StreamURIRequestXml() = default;

StreamURIRequestXml::~StreamURIRequestXml() = default;

void StreamURIRequestXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "StreamURIRequestInfo");
    frame::setText(element, "UserName", userName_);
    frame::setText(element, "Password", password_);
    frame::setInt(element, "CameraID", cameraID_);
    frame::setInt(element, "StreamID", streamID_);
    frame::setInt(element, "RtspTransferProtocol", rtspTransferProtocol_);
    frame::writeAddress(element, "Addr", addr_);
}

bool StreamURIRequestXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool StreamURIRequestXml::parseXmlString()
{
    return frame::parseRoot(text_, "StreamURIRequestInfo", document_, node_) && parseXmlNode();
}

bool StreamURIRequestXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    userName_ = frame::textOf(*element, "UserName", userName_);
    password_ = frame::textOf(*element, "Password", password_);
    cameraID_ = frame::intOf(*element, "CameraID", cameraID_);
    streamID_ = frame::intOf(*element, "StreamID", streamID_);
    rtspTransferProtocol_ = frame::intOf(*element, "RtspTransferProtocol", rtspTransferProtocol_);
    frame::readAddress(*element, "Addr", addr_);
    return true;
}
