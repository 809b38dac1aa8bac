// <MicrophoneRequestCommand CameraId="1" EncodeType="2" StreamType="3" DataChannelId="4" />

#include "commands/MicrophoneRequestXml.h"

#include "core/Frame.h"

MicrophoneRequestXml::MicrophoneRequestXml() = default;

MicrophoneRequestXml::~MicrophoneRequestXml() = default;

void MicrophoneRequestXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "MicrophoneRequestCommand");
    frame::setInt(element, "CameraId", cameraId_);
    frame::setInt(element, "EncodeType", encodeType_);
    // The field and its attribute differ in name.
    frame::setInt(element, "StreamType", streamFormat_);
    frame::setInt(element, "DataChannelId", dataChannelId_);
}

bool MicrophoneRequestXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool MicrophoneRequestXml::parseXmlString()
{
    return frame::parseRoot(text_, "MicrophoneRequestCommand", document_, node_) && parseXmlNode();
}

bool MicrophoneRequestXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    cameraId_ = frame::intOf(*element, "CameraId", cameraId_);
    encodeType_ = frame::intOf(*element, "EncodeType", encodeType_);
    streamFormat_ = frame::intOf(*element, "StreamType", streamFormat_);
    dataChannelId_ = frame::intOf(*element, "DataChannelId", dataChannelId_);
    return true;
}
