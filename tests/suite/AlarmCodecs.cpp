#include "tests/suite/Codecs.h"

#include "alarm/AlarmActionXml.h"
#include "alarm/AlarmOutActionXml.h"
#include "alarm/AlarmOverlayActionXml.h"
#include "alarm/AlarmPTZActionExXml.h"
#include "alarm/AlarmPTZActionXml.h"
#include "alarm/AlarmRecordActionXml.h"
#include "alarm/ScheduleTimeParamXml.h"
#include "alarm/ScheduleTimeSegmentXml.h"
#include "alarm/ScheduleTimeXml.h"
#include "alarm/ScheduleWeekXml.h"
#include "alarm/SendMailActionXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> alarmCodecs()
{
    return {
        // clang-format off
        {"alarm", "AlarmActionXml", "document", rewriteDocument<AlarmActionXml>},
        {"alarm", "AlarmOutActionXml", "document", rewriteDocument<AlarmOutActionXml>},
        {"alarm", "AlarmOutActionXml", "node", rewriteText<AlarmOutActionXml, AlarmOutAction>},
        {"alarm", "AlarmOverlayActionXml", "document", rewriteDocument<AlarmOverlayActionXml>},
        {"alarm", "AlarmOverlayActionXml", "node", rewriteText<AlarmOverlayActionXml, AlarmOverlayAction>},
        {"alarm", "AlarmPTZActionExXml", "document", rewriteDocument<AlarmPTZActionExXml>},
        {"alarm", "AlarmPTZActionXml", "document", rewriteDocument<AlarmPTZActionXml>},
        {"alarm", "AlarmPTZActionXml", "node", rewriteText<AlarmPTZActionXml, AlarmPTZAction>},
        {"alarm", "AlarmRecordActionXml", "document", rewriteDocument<AlarmRecordActionXml>},
        {"alarm", "AlarmRecordActionXml", "node", rewriteText<AlarmRecordActionXml, AlarmRecordAction>},
        {"alarm", "ScheduleTimeParamXml", "document", rewriteDocument<ScheduleTimeParamXml>},
        {"alarm", "ScheduleTimeParamXml", "node", rewriteText<ScheduleTimeParamXml, ScheduleTimeParam>},
        {"alarm", "ScheduleTimeSegmentXml", "document", rewriteDocument<ScheduleTimeSegmentXml>},
        {"alarm", "ScheduleTimeSegmentXml", "node", rewriteText<ScheduleTimeSegmentXml, ScheduleTimeSegment>},
        {"alarm", "ScheduleTimeXml", "document", rewriteDocument<ScheduleTimeXml>},
        {"alarm", "ScheduleTimeXml", "node", rewriteText<ScheduleTimeXml, ScheduleTime>},
        {"alarm", "ScheduleWeekXml", "document", rewriteDocument<ScheduleWeekXml>},
        {"alarm", "ScheduleWeekXml", "node", rewriteText<ScheduleWeekXml, ScheduleWeek>},
        {"alarm", "SendMailActionXml", "document", rewriteDocument<SendMailActionXml>},
        // clang-format on
    };
}
