// <MakeKeyFrameCommand CameraId="1" ComsumerId="2" />

#include "commands/MakeKeyFrameXml.h"

#include "core/Frame.h"

MakeKeyFrameXml::MakeKeyFrameXml() = default;

MakeKeyFrameXml::~MakeKeyFrameXml() = default;

void MakeKeyFrameXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "MakeKeyFrameCommand");
    frame::setInt(element, "CameraId", cameraId_);
    // The peers know this attribute of this command by the misspelt name only.
    frame::setInt(element, "ComsumerId", consumerId_);
}

bool MakeKeyFrameXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool MakeKeyFrameXml::parseXmlString()
{
    return frame::parseRoot(text_, "MakeKeyFrameCommand", document_, node_) && parseXmlNode();
}

bool MakeKeyFrameXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    cameraId_ = frame::intOf(*element, "CameraId", cameraId_);
    consumerId_ = frame::intOf(*element, "ComsumerId", consumerId_);
    return true;
}
