// <OcclusionDetectionEventList>
//     <OcclusionDetectionEvent ... />
// </OcclusionDetectionEventList>

#include "alarm/OcclusionDetectionEventListXml.h"

#include "alarm/OcclusionDetectionEventXml.h"
#include "core/Frame.h"

#include <utility>

OcclusionDetectionEventListXml::OcclusionDetectionEventListXml() = default;

OcclusionDetectionEventListXml::~OcclusionDetectionEventListXml() = default;

void OcclusionDetectionEventListXml::createXmlNode()
{
    writeElement(document_, events_);
}

bool OcclusionDetectionEventListXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool OcclusionDetectionEventListXml::parseXmlString()
{
    return frame::parseRoot(text_, "OcclusionDetectionEventList", document_, node_) && parseXmlNode();
}

bool OcclusionDetectionEventListXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, events_);
}

TiXmlElement& OcclusionDetectionEventListXml::writeElement(TiXmlNode& parent,
                                                           const std::vector<OcclusionDetectionEvent>& events)
{
    TiXmlElement& element = frame::appendElement(parent, "OcclusionDetectionEventList");
    for (const OcclusionDetectionEvent& event : events)
        OcclusionDetectionEventXml::writeElement(element, event);
    return element;
}

bool OcclusionDetectionEventListXml::readElement(const TiXmlElement& element,
                                                 std::vector<OcclusionDetectionEvent>& events)
{
    const TiXmlElement* item = frame::firstItem(element, "OcclusionDetectionEvent");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        OcclusionDetectionEvent event;
        if (!OcclusionDetectionEventXml::readElement(*item, event)) return false;
        events.push_back(std::move(event));
    }
    return true;
}
