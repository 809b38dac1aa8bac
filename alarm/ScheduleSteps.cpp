#include "alarm/ScheduleSteps.h"

#include "alarm/ScheduleTimeSegmentXml.h"
#include "alarm/ScheduleWeekXml.h"
#include "core/Frame.h"

#include <utility>

namespace frame
{

bool appendSchedule(SafePointer<DomainXmlNode>& node, const ScheduleTimeParam& schedule)
{
    SafePointer<DomainXmlNode> weeks = appendNode(node, "ScheduleWeekList");
    for (const ScheduleWeek& week : schedule.getScheduleWeekList())
    {
        SafePointer<DomainXmlNode> item = appendNode(weeks, "ScheduleWeek");
        if (!ScheduleWeekXml().createDomainXmlNode(week, item)) return false;
    }

    SafePointer<DomainXmlNode> segments = appendNode(node, "ScheduleTimeSegmentList");
    for (const ScheduleTimeSegment& segment : schedule.getScheduleTimeSegmentList())
    {
        SafePointer<DomainXmlNode> item = appendNode(segments, "ScheduleTimeSegment");
        if (!ScheduleTimeSegmentXml().createDomainXmlNode(segment, item)) return false;
    }
    return true;
}

bool readWeeks(const SafePointer<DomainXmlNode>& list, std::vector<ScheduleWeek>& weeks)
{
    TiXmlElement* item = firstChild(list);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ScheduleWeek week;
        if (!ScheduleWeekXml().parseDomainXmlNode(nodeOf(*item), week)) return false;
        weeks.push_back(std::move(week));
    }
    return true;
}

bool readSegments(const SafePointer<DomainXmlNode>& list, std::vector<ScheduleTimeSegment>& segments)
{
    TiXmlElement* item = firstChild(list);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ScheduleTimeSegment segment;
        if (!ScheduleTimeSegmentXml().parseDomainXmlNode(nodeOf(*item), segment)) return false;
        segments.push_back(segment);
    }
    return true;
}

} // namespace frame
