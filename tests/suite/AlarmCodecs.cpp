#include "tests/suite/Codecs.h"

#include "alarm/ScheduleTimeParamXml.h"
#include "alarm/ScheduleTimeSegmentXml.h"
#include "alarm/ScheduleTimeXml.h"
#include "alarm/ScheduleWeekXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> alarmCodecs()
{
    return {
        // clang-format off
        {"alarm", "ScheduleTimeParamXml", "document", rewriteDocument<ScheduleTimeParamXml>},
        {"alarm", "ScheduleTimeParamXml", "node", rewriteText<ScheduleTimeParamXml, ScheduleTimeParam>},
        {"alarm", "ScheduleTimeSegmentXml", "document", rewriteDocument<ScheduleTimeSegmentXml>},
        {"alarm", "ScheduleTimeSegmentXml", "node", rewriteText<ScheduleTimeSegmentXml, ScheduleTimeSegment>},
        {"alarm", "ScheduleTimeXml", "document", rewriteDocument<ScheduleTimeXml>},
        {"alarm", "ScheduleTimeXml", "node", rewriteText<ScheduleTimeXml, ScheduleTime>},
        {"alarm", "ScheduleWeekXml", "document", rewriteDocument<ScheduleWeekXml>},
        {"alarm", "ScheduleWeekXml", "node", rewriteText<ScheduleWeekXml, ScheduleWeek>},
        // clang-format on
    };
}
