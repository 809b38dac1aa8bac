#include "tests/suite/Codecs.h"

#include "alarm/AlarmActionXml.h"
#include "alarm/AlarmDataXml.h"
#include "alarm/AlarmEventXml.h"
#include "alarm/AlarmIOEventXml.h"
#include "alarm/AlarmIOModeXml.h"
#include "alarm/AlarmInDeviceInfoXml.h"
#include "alarm/AlarmInDeviceXml.h"
#include "alarm/AlarmInfoExQueryParamListXml.h"
#include "alarm/AlarmInfoExQueryParamXml.h"
#include "alarm/AlarmInfoExRecordSetXml.h"
#include "alarm/AlarmInfoExXml.h"
#include "alarm/AlarmInfoXml.h"
#include "alarm/AlarmLogQueryParamXml.h"
#include "alarm/AlarmLogRecordSetXml.h"
#include "alarm/AlarmOutActionXml.h"
#include "alarm/AlarmOutDeviceInfoXml.h"
#include "alarm/AlarmOutDeviceXml.h"
#include "alarm/AlarmOverlayActionXml.h"
#include "alarm/AlarmPTZActionExXml.h"
#include "alarm/AlarmPTZActionXml.h"
#include "alarm/AlarmParamXml.h"
#include "alarm/AlarmRecordActionXml.h"
#include "alarm/AlarmResponseXml.h"
#include "alarm/AlarmServiceParamXml.h"
#include "alarm/AlarmTypeXml.h"
#include "alarm/CameraMaskEventXml.h"
#include "alarm/DetectionAreaXml.h"
#include "alarm/DetectionAreaXmlV2.h"
#include "alarm/DiskAlarmParamV2Xml.h"
#include "alarm/DiskAlarmParamXml.h"
#include "alarm/MotionDetectionEventXml.h"
#include "alarm/MotionDetectionEventXmlV2.h"
#include "alarm/MotionDetectionParamXml.h"
#include "alarm/MotionDetectionParamXmlV2.h"
#include "alarm/NetworkAlarmEventXml.h"
#include "alarm/NetworkAlarmParamXml.h"
#include "alarm/OcclusionDetectionEventListXml.h"
#include "alarm/OcclusionDetectionEventXml.h"
#include "alarm/OcclusionDetectionParamXml.h"
#include "alarm/PIRAlarmEventXml.h"
#include "alarm/ScheduleTimeParamXml.h"
#include "alarm/ScheduleTimeSegmentXml.h"
#include "alarm/ScheduleTimeXml.h"
#include "alarm/ScheduleWeekXml.h"
#include "alarm/SendMailActionXml.h"
#include "alarm/VideoLoseDetectionEventListXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> alarmCodecs()
{
    return {
        // clang-format off
        {"alarm", "AlarmActionXml", "document", rewriteDocument<AlarmActionXml>},
        {"alarm", "AlarmDataXml", "document", rewriteDocument<AlarmDataXml>},
        {"alarm", "AlarmDataXml", "node", rewriteText<AlarmDataXml, AlarmData>},
        {"alarm", "AlarmEventXml", "list", rewriteText<AlarmEventXml, std::vector<AlarmEvent>>},
        {"alarm", "AlarmIOEventXml", "document", rewriteDocument<AlarmIOEventXml>},
        {"alarm", "AlarmIOEventXml", "node", rewriteText<AlarmIOEventXml, AlarmIOEvent>},
        {"alarm", "AlarmIOEventXml", "list", rewriteText<AlarmIOEventXml, std::vector<AlarmIOEvent>>},
        {"alarm", "AlarmIOModeXml", "document", rewriteDocument<AlarmIOModeXml>, ""},
        {"alarm", "AlarmIOModeXml", "node", rewriteText<AlarmIOModeXml, AlarmIOMode>},
        {"alarm", "AlarmInDeviceInfoXml", "document", rewriteDocument<AlarmInDeviceInfoXml>},
        {"alarm", "AlarmInDeviceXml", "document", rewriteDocument<AlarmInDeviceXml>},
        {"alarm", "AlarmInDeviceXml", "node", rewriteText<AlarmInDeviceXml, AlarmInDevice>},
        {"alarm", "AlarmInfoExQueryParamListXml", "document", rewriteDocument<AlarmInfoExQueryParamListXml>},
        {"alarm", "AlarmInfoExQueryParamXml", "document", rewriteDocument<AlarmInfoExQueryParamXml>},
        {"alarm", "AlarmInfoExRecordSetXml", "document", rewriteDocument<AlarmInfoExRecordSetXml>},
        {"alarm", "AlarmInfoExXml", "document", rewriteDocument<AlarmInfoExXml>},
        {"alarm", "AlarmInfoXml", "document", rewriteDocument<AlarmInfoXml>},
        {"alarm", "AlarmInfoXml", "node", rewriteText<AlarmInfoXml, AlarmInfo>},
        {"alarm", "AlarmLogQueryParamXml", "document", rewriteDocument<AlarmLogQueryParamXml>},
        {"alarm", "AlarmLogRecordSetXml", "document", rewriteDocument<AlarmLogRecordSetXml>},
        {"alarm", "AlarmOutActionXml", "document", rewriteDocument<AlarmOutActionXml>},
        {"alarm", "AlarmOutActionXml", "node", rewriteText<AlarmOutActionXml, AlarmOutAction>},
        {"alarm", "AlarmOutDeviceInfoXml", "document", rewriteDocument<AlarmOutDeviceInfoXml>},
        {"alarm", "AlarmOutDeviceXml", "document", rewriteDocument<AlarmOutDeviceXml>},
        {"alarm", "AlarmOutDeviceXml", "node", rewriteText<AlarmOutDeviceXml, AlarmOutDevice>},
        {"alarm", "AlarmOutDeviceXml", "list", rewriteText<AlarmOutDeviceXml, std::vector<AlarmOutDevice>>},
        {"alarm", "AlarmOverlayActionXml", "document", rewriteDocument<AlarmOverlayActionXml>},
        {"alarm", "AlarmOverlayActionXml", "node", rewriteText<AlarmOverlayActionXml, AlarmOverlayAction>},
        {"alarm", "AlarmPTZActionExXml", "document", rewriteDocument<AlarmPTZActionExXml>},
        {"alarm", "AlarmPTZActionXml", "document", rewriteDocument<AlarmPTZActionXml>},
        {"alarm", "AlarmPTZActionXml", "node", rewriteText<AlarmPTZActionXml, AlarmPTZAction>},
        {"alarm", "AlarmParamXml", "document", rewriteDocument<AlarmParamXml>},
        {"alarm", "AlarmParamXml", "node", rewriteText<AlarmParamXml, AlarmParam>},
        {"alarm", "AlarmRecordActionXml", "document", rewriteDocument<AlarmRecordActionXml>},
        {"alarm", "AlarmRecordActionXml", "node", rewriteText<AlarmRecordActionXml, AlarmRecordAction>},
        {"alarm", "AlarmResponseXml", "document", rewriteDocument<AlarmResponseXml>},
        {"alarm", "AlarmServiceParamXml", "document", rewriteDocument<AlarmServiceParamXml>},
        {"alarm", "AlarmServiceParamXml", "node", rewriteText<AlarmServiceParamXml, AlarmServiceParam>},
        {"alarm", "AlarmTypeXml", "document", rewriteDocument<AlarmTypeXml>},
        {"alarm", "AlarmTypeXml", "node", rewriteText<AlarmTypeXml, AlarmType>},
        {"alarm", "AlarmTypeXml", "list", rewriteText<AlarmTypeXml, std::vector<AlarmType>>},
        {"alarm", "CameraMaskEventXml", "document", rewriteDocument<CameraMaskEventXml>},
        {"alarm", "DetectionAreaXml", "document", rewriteDocument<DetectionAreaXml>},
        {"alarm", "DetectionAreaXml", "list", rewriteText<DetectionAreaXml, std::vector<DetectionArea>>},
        {"alarm", "DetectionAreaXmlV2", "document", rewriteDocument<DetectionAreaXmlV2>},
        {"alarm", "DetectionAreaXmlV2", "node", rewriteText<DetectionAreaXmlV2, DetectionAreaV2>},
        {"alarm", "DiskAlarmParamV2Xml", "document", rewriteDocument<DiskAlarmParamV2Xml>},
        {"alarm", "DiskAlarmParamV2Xml", "node", rewriteText<DiskAlarmParamV2Xml, DiskAlarmParamV2>},
        {"alarm", "DiskAlarmParamV2Xml", "list", rewriteText<DiskAlarmParamV2Xml, std::vector<DiskAlarmParamV2>>},
        {"alarm", "DiskAlarmParamXml", "document", rewriteDocument<DiskAlarmParamXml>},
        {"alarm", "MotionDetectionEventXml", "document", rewriteDocument<MotionDetectionEventXml>},
        {"alarm", "MotionDetectionEventXmlV2", "document", rewriteDocument<MotionDetectionEventXmlV2>},
        {"alarm", "MotionDetectionEventXmlV2", "list", rewriteText<MotionDetectionEventXmlV2, std::vector<MotionDetectionEventV2>>, "rewritten"},
        {"alarm", "MotionDetectionParamXml", "document", rewriteDocument<MotionDetectionParamXml>},
        {"alarm", "MotionDetectionParamXmlV2", "document", rewriteDocument<MotionDetectionParamXmlV2>},
        {"alarm", "MotionDetectionParamXmlV2", "node", rewriteText<MotionDetectionParamXmlV2, MotionDetectionParamV2>},
        {"alarm", "NetworkAlarmEventXml", "document", rewriteDocument<NetworkAlarmEventXml>},
        {"alarm", "NetworkAlarmParamXml", "document", rewriteDocument<NetworkAlarmParamXml>},
        {"alarm", "NetworkAlarmParamXml", "node", rewriteText<NetworkAlarmParamXml, NetworkAlarmParam>, "rewritten"},
        {"alarm", "OcclusionDetectionEventListXml", "document", rewriteDocument<OcclusionDetectionEventListXml>},
        {"alarm", "OcclusionDetectionEventXml", "document", rewriteDocument<OcclusionDetectionEventXml>},
        {"alarm", "OcclusionDetectionEventXml", "list", rewriteText<OcclusionDetectionEventXml, std::vector<OcclusionDetectionEvent>>},
        {"alarm", "OcclusionDetectionParamXml", "document", rewriteDocument<OcclusionDetectionParamXml>},
        {"alarm", "OcclusionDetectionParamXml", "node", rewriteText<OcclusionDetectionParamXml, OcclusionDetectionParam>},
        {"alarm", "PIRAlarmEventXml", "document", rewriteDocument<PIRAlarmEventXml>},
        {"alarm", "PIRAlarmEventXml", "node", rewriteText<PIRAlarmEventXml, PIRAlarmEvent>},
        {"alarm", "PIRAlarmEventXml", "list", rewriteText<PIRAlarmEventXml, std::vector<PIRAlarmEvent>>},
        {"alarm", "ScheduleTimeParamXml", "document", rewriteDocument<ScheduleTimeParamXml>},
        {"alarm", "ScheduleTimeParamXml", "node", rewriteText<ScheduleTimeParamXml, ScheduleTimeParam>},
        {"alarm", "ScheduleTimeSegmentXml", "document", rewriteDocument<ScheduleTimeSegmentXml>},
        {"alarm", "ScheduleTimeSegmentXml", "node", rewriteText<ScheduleTimeSegmentXml, ScheduleTimeSegment>},
        {"alarm", "ScheduleTimeXml", "document", rewriteDocument<ScheduleTimeXml>},
        {"alarm", "ScheduleTimeXml", "node", rewriteText<ScheduleTimeXml, ScheduleTime>},
        {"alarm", "ScheduleWeekXml", "document", rewriteDocument<ScheduleWeekXml>},
        {"alarm", "ScheduleWeekXml", "node", rewriteText<ScheduleWeekXml, ScheduleWeek>},
        {"alarm", "SendMailActionXml", "document", rewriteDocument<SendMailActionXml>},
        {"alarm", "VideoLoseDetectionEventListXml", "list", rewriteText<VideoLoseDetectionEventListXml, std::vector<VideoLoseDetectionEvent>>},
        // clang-format on
    };
}
