// <ScheduleTimeParam DeviceId="D1" CameraId="1">
//     <ScheduleWeekList>
//         <ScheduleWeek WeekDay="1">
//             <ScheduleTimeList>
//                 <ScheduleTime StartTime="0" EndTime="3600" />
//             </ScheduleTimeList>
//         </ScheduleWeek>
//     </ScheduleWeekList>
//     <ScheduleTimeSegmentList>
//         <ScheduleTimeSegment BeginTime="1425254400" EndTime="1425340800" />
//     </ScheduleTimeSegmentList>
// </ScheduleTimeParam>
//
// "falied" is how the peers spell it in the lines.

#include "alarm/ScheduleTimeParamXml.h"

#include "alarm/ScheduleSteps.h"
#include "alarm/ScheduleTimeSegmentXml.h"
#include "alarm/ScheduleWeekXml.h"
#include "core/Frame.h"

#include <cstdio>
#include <utility>
#include <vector>

ScheduleTimeParamXml::ScheduleTimeParamXml() = default;

ScheduleTimeParamXml::~ScheduleTimeParamXml() = default;

void ScheduleTimeParamXml::createXmlNode()
{
    writeElement(document_, schedule_);
}

bool ScheduleTimeParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ScheduleTimeParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "ScheduleTimeParam", document_, node_) && parseXmlNode();
}

bool ScheduleTimeParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, schedule_);
}

TiXmlElement& ScheduleTimeParamXml::writeElement(TiXmlNode& parent, const ScheduleTimeParam& schedule)
{
    TiXmlElement& element = frame::appendElement(parent, "ScheduleTimeParam");
    frame::setText(element, "DeviceId", schedule.getDeviceId());
    frame::setInt(element, "CameraId", schedule.getCameraId());

    TiXmlElement& weeks = frame::appendElement(element, "ScheduleWeekList");
    for (const ScheduleWeek& week : schedule.getScheduleWeekList())
        ScheduleWeekXml::writeElement(weeks, week);

    TiXmlElement& segments = frame::appendElement(element, "ScheduleTimeSegmentList");
    for (const ScheduleTimeSegment& segment : schedule.getScheduleTimeSegmentList())
        ScheduleTimeSegmentXml::writeElement(segments, segment);
    return element;
}

bool ScheduleTimeParamXml::readElement(const TiXmlElement& element, ScheduleTimeParam& schedule)
{
    schedule.setDeviceId(frame::textOf(element, "DeviceId", ""));
    schedule.setCameraId(frame::intOf(element, "CameraId", 0));

    const TiXmlElement* item = frame::firstItem(element, "ScheduleWeekList", "ScheduleWeek");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ScheduleWeek week;
        if (!ScheduleWeekXml::readElement(*item, week)) return false;
        schedule.getScheduleWeekList().push_back(std::move(week));
    }

    item = frame::firstItem(element, "ScheduleTimeSegmentList", "ScheduleTimeSegment");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ScheduleTimeSegment segment;
        if (!ScheduleTimeSegmentXml::readElement(*item, segment)) return false;
        schedule.getScheduleTimeSegmentList().push_back(segment);
    }
    return true;
}

bool ScheduleTimeParamXml::createDomainXmlNode(const ScheduleTimeParam& schedule,
                                               SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("DeviceId", schedule.getDeviceId());
    node->setProperty("CameraId", schedule.getCameraId());

    return frame::appendSchedule(node, schedule);
}

bool ScheduleTimeParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ScheduleTimeParam& schedule) const
{
    if (!node) return false;

    schedule.setCameraId(
        frame::intProperty(node, "CameraId", 0, "ScheduleTimeParamXml::parseDomainXmlNode get CameraId falied "));
    schedule.setDeviceId(
        frame::textProperty(node, "DeviceId", "", "ScheduleTimeParamXml::parseDomainXmlNode get DeviceId falied "));

    SafePointer<DomainXmlNode> weekList;
    std::vector<ScheduleWeek> weeks;
    if (!node->getConfigNode("ScheduleWeekList", weekList))
        std::puts("ScheduleTimeParamXml::parseDomainXmlNode get ScheduleWeekListNode falied ");
    else if (!frame::readWeeks(weekList, weeks))
        std::puts("ScheduleTimeParamXml::parseDomainXmlNode get ScheduleWeekNodeList falied ");
    schedule.getScheduleWeekList() = std::move(weeks);

    SafePointer<DomainXmlNode> segmentList;
    std::vector<ScheduleTimeSegment> segments;
    if (!node->getConfigNode("ScheduleTimeSegmentList", segmentList))
        std::puts("ScheduleTimeParamXml::parseDomainXmlNode get ScheduleTimeSegmentListNode falied ");
    else if (!frame::readSegments(segmentList, segments))
        std::puts("ScheduleTimeParamXml::parseDomainXmlNode get ScheduleTimeSegmentNodeList falied ");
    schedule.getScheduleTimeSegmentList() = std::move(segments);
    return true;
}

bool ScheduleTimeParamXml::createXmlString(const ScheduleTimeParam& schedule, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ScheduleTimeParam");
    return createDomainXmlNode(schedule, node) && DomainXmlNode::toString(node, text);
}

bool ScheduleTimeParamXml::parseXmlString(const std::string& text, ScheduleTimeParam& schedule) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ScheduleTimeParam", node) && parseDomainXmlNode(node, schedule);
}
