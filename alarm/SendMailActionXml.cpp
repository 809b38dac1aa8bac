// <SendMailAction SendPictureFlag="1" CameraId="1" />
//
// "SendPictureFlag" is a number, unlike most flags: the peers read "true" as 0.

#include "alarm/SendMailActionXml.h"

#include "core/Frame.h"

SendMailActionXml::SendMailActionXml() = default;

SendMailActionXml::~SendMailActionXml() = default;

void SendMailActionXml::createXmlNode()
{
    writeElement(document_, action_);
}

bool SendMailActionXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SendMailActionXml::parseXmlString()
{
    return frame::parseRoot(text_, "SendMailAction", document_, node_) && parseXmlNode();
}

bool SendMailActionXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, action_);
}

void SendMailActionXml::writeElement(TiXmlNode& parent, const SendMailAction& action)
{
    if (!action.getSendMailFlag()) return;

    TiXmlElement& element = frame::appendElement(parent, "SendMailAction");
    frame::setInt(element, "SendPictureFlag", action.getSendPictureFlag() ? 1 : 0);
    frame::setInt(element, "CameraId", action.getCameraId());
}

bool SendMailActionXml::readElement(const TiXmlElement& element, SendMailAction& action)
{
    action.setSendMailFlag(true);
    action.setSendPictureFlag(frame::intOf(element, "SendPictureFlag", 0) != 0);
    action.setCameraId(frame::intOf(element, "CameraId", 0));
    return true;
}
