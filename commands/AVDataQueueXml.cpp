// <AVDataQueue CameraId="1" ChannelId="2" />

#include "commands/AVDataQueueXml.h"

#include "core/Frame.h"

AVDataQueueXml::AVDataQueueXml() = default;

AVDataQueueXml::~AVDataQueueXml() = default;

void AVDataQueueXml::createXmlNode()
{
    writeElement(document_, queue_);
}

bool AVDataQueueXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool AVDataQueueXml::parseXmlString()
{
    return frame::parseRoot(text_, "AVDataQueue", document_, node_) && parseXmlNode();
}

bool AVDataQueueXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, queue_);
}

TiXmlElement& AVDataQueueXml::writeElement(TiXmlNode& parent, const AVDataQueue& queue)
{
    TiXmlElement& element = frame::appendElement(parent, "AVDataQueue");
    frame::setInt(element, "CameraId", queue.getCameraId());
    frame::setInt(element, "ChannelId", queue.getChannelId());
    return element;
}

bool AVDataQueueXml::readElement(const TiXmlElement& element, AVDataQueue& queue)
{
    queue.setCameraId(frame::intOf(element, "CameraId", 0));
    queue.setChannelId(frame::intOf(element, "ChannelId", 0));
    return true;
}
