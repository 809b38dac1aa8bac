// <ScheduleRecordTimeParam DeviceId="D1" CameraId="1">
//     <ScheduleWeekList>
//         <ScheduleWeek ... />
//     </ScheduleWeekList>
//     <ScheduleTimeSegmentList>
//         <ScheduleTimeSegment ... />
//     </ScheduleTimeSegmentList>
// </ScheduleRecordTimeParam>
//
// The document form is that of a ScheduleTimeParam under another name. The node form differs from it.

#include "record/ScheduleRecordTimeParamXml.h"

#include "alarm/ScheduleSteps.h"
#include "alarm/ScheduleTimeParamXml.h"
#include "core/Frame.h"

#include <cstdio>
#include <utility>
#include <vector>

ScheduleRecordTimeParamXml::ScheduleRecordTimeParamXml() = default;

ScheduleRecordTimeParamXml::~ScheduleRecordTimeParamXml() = default;

void ScheduleRecordTimeParamXml::createXmlNode()
{
    writeElement(document_, schedule_);
}

bool ScheduleRecordTimeParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ScheduleRecordTimeParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "ScheduleRecordTimeParam", document_, node_) && parseXmlNode();
}

bool ScheduleRecordTimeParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, schedule_);
}

TiXmlElement& ScheduleRecordTimeParamXml::writeElement(TiXmlNode& parent, const ScheduleTimeParam& schedule)
{
    TiXmlElement& element = ScheduleTimeParamXml::writeElement(parent, schedule);
    element.SetValue("ScheduleRecordTimeParam");
    return element;
}

bool ScheduleRecordTimeParamXml::readElement(const TiXmlElement& element, ScheduleTimeParam& schedule)
{
    return ScheduleTimeParamXml::readElement(element, schedule);
}

bool ScheduleRecordTimeParamXml::createDomainXmlNode(const ScheduleTimeParam& schedule,
                                                     SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    // Here, and not in the document form, the peers put the camera before the device.
    node->setProperty("CameraId", schedule.getCameraId());
    node->setProperty("DeviceId", schedule.getDeviceId());

    return frame::appendSchedule(node, schedule);
}

bool ScheduleRecordTimeParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                    ScheduleTimeParam& schedule) const
{
    if (!node) return false;

    schedule.setCameraId(frame::intProperty(
        node, "CameraId", 1, "ScheduleRecordTimeParamXml::parseDomainXmlNode  node = ATTR_CAMERA_ID failed"));
    schedule.setDeviceId(frame::textProperty(
        node, "DeviceId", "", "ScheduleRecordTimeParamXml::parseDomainXmlNode  node = ATTR_DEVICE_ID failed"));

    SafePointer<DomainXmlNode> weekList;
    std::vector<ScheduleWeek> weeks;
    if (!node->getConfigNode("ScheduleWeekList", weekList))
        std::puts("ScheduleRecordTimeParamXml::parseDomainXmlNode  node = NODE_SCHEDULE_WEEK_LIST failed");
    else if (!frame::readWeeks(weekList, weeks))
        return false;
    schedule.getScheduleWeekList() = std::move(weeks);

    SafePointer<DomainXmlNode> segmentList;
    std::vector<ScheduleTimeSegment> segments;
    if (!node->getConfigNode("ScheduleTimeSegmentList", segmentList))
        std::puts("ScheduleRecordTimeParamXml::parseDomainXmlNode  node = NODE_SCHEDULE_TIME_SEGMENT_LIST failed");
    else if (!frame::readSegments(segmentList, segments))
        return false;
    schedule.getScheduleTimeSegmentList() = std::move(segments);
    return true;
}

bool ScheduleRecordTimeParamXml::createXmlString(const ScheduleTimeParam& schedule, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ScheduleRecordTimeParam");
    return createDomainXmlNode(schedule, node) && DomainXmlNode::toString(node, text);
}

bool ScheduleRecordTimeParamXml::parseXmlString(const std::string& text, ScheduleTimeParam& schedule) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ScheduleRecordTimeParam", node) && parseDomainXmlNode(node, schedule);
}
