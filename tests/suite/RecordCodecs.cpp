#include "tests/suite/Codecs.h"

#include "record/AlarmExTypeXml.h"
#include "record/AlarmRecordPolicyXml.h"
#include "record/DiskFormatExXml.h"
#include "record/DiskLoadXml.h"
#include "record/DiskUnloadXml.h"
#include "record/ManualRecordParameterXml.h"
#include "record/RecordDirInfoXml.h"
#include "record/RecordFileExXml.h"
#include "record/RecordFileSearchParamXml.h"
#include "record/RecordFileXml.h"
#include "record/RecordInfoXml.h"
#include "record/RecordLogInfoXml.h"
#include "record/RecordPolicyXml.h"
#include "record/RecordQualityParamXml.h"
#include "record/RecordQueryConditionXml.h"
#include "record/RecordQueryResultXml.h"
#include "record/RecordStorageParamXml.h"
#include "record/RecordSummaryInfoXml.h"
#include "record/SavePolicyXml.h"
#include "record/ScheduleRecordParamXml.h"
#include "record/ScheduleRecordPolicyXml.h"
#include "record/ScheduleRecordTimeParamXml.h"
#include "record/SpacePolicyXml.h"
#include "record/WritePolicyXml.h"
#include "record/ZT_RecordDirInfoXml.h"
#include "tests/suite/Rewrite.h"

namespace
{

bool rewriteAlarmTypes(const std::string& text, std::string& rewritten)
{
    SafePointer<DomainXmlNode> list;
    if (!DomainXmlNode::parse(text, list)) return false;
    TiXmlElement parent("Parent");
    rewritten = printed(AlarmExTypeXml::writeList(parent, AlarmExTypeXml::readList(*list->getXmlNode())));
    return true;
}

} // namespace

std::vector<CodecCase> recordCodecs()
{
    return {
        // clang-format off
        {"record", "AlarmExTypeXml", "element", rewriteAlarmTypes},
        {"record", "AlarmRecordPolicyXml", "document", rewriteDocument<AlarmRecordPolicyXml>},
        {"record", "AlarmRecordPolicyXml", "node", rewriteText<AlarmRecordPolicyXml, AlarmRecordPolicy>},
        {"record", "DiskFormatExXml", "document", rewriteDocument<DiskFormatExXml>},
        {"record", "DiskLoadXml", "document", rewriteDocument<DiskLoadXml>},
        {"record", "DiskUnloadXml", "document", rewriteDocument<DiskUnloadXml>},
        {"record", "ManualRecordParameterXml", "document", rewriteDocument<ManualRecordParameterXml>},
        {"record", "RecordDirInfoXml", "document", rewriteDocument<RecordDirInfoXml>},
        {"record", "RecordDirInfoXml", "list", rewriteText<RecordDirInfoXml, std::vector<RecordDirInfo>>},
        {"record", "RecordFileExXml", "document", rewriteDocument<RecordFileExXml>},
        {"record", "RecordFileSearchParamXml", "document", rewriteDocument<RecordFileSearchParamXml>, "document"},
        {"record", "RecordFileXml", "document", rewriteDocument<RecordFileXml>},
        {"record", "RecordInfoXml", "document", rewriteDocument<RecordInfoXml>},
        {"record", "RecordLogInfoXml", "document", rewriteDocument<RecordLogInfoXml>, "document"},
        {"record", "RecordPolicyXml", "document", rewriteDocument<RecordPolicyXml>},
        {"record", "RecordPolicyXml", "list", rewriteText<RecordPolicyXml, std::vector<RecordPolicy>>},
        {"record", "RecordQualityParamXml", "document", rewriteDocument<RecordQualityParamXml>},
        {"record", "RecordQueryConditionXml", "document", rewriteDocument<RecordQueryConditionXml>},
        {"record", "RecordQueryResultXml", "document", rewriteDocument<RecordQueryResultXml>},
        {"record", "RecordStorageParamXml", "document", rewriteDocument<RecordStorageParamXml>},
        {"record", "RecordSummaryInfoXml", "node", rewriteText<RecordSummaryInfoXml, RecordSummaryInfo>},
        {"record", "SavePolicyXml", "document", rewriteDocument<SavePolicyXml>},
        {"record", "ScheduleRecordParamXml", "document", rewriteDocument<ScheduleRecordParamXml>},
        {"record", "ScheduleRecordPolicyXml", "document", rewriteDocument<ScheduleRecordPolicyXml>},
        {"record", "ScheduleRecordPolicyXml", "node", rewriteText<ScheduleRecordPolicyXml, ScheduleRecordPolicy>},
        {"record", "ScheduleRecordTimeParamXml", "document", rewriteDocument<ScheduleRecordTimeParamXml>},
        {"record", "ScheduleRecordTimeParamXml", "node", rewriteText<ScheduleRecordTimeParamXml, ScheduleTimeParam>},
        {"record", "SpacePolicyXml", "document", rewriteDocument<SpacePolicyXml>},
        {"record", "WritePolicyXml", "document", rewriteDocument<WritePolicyXml>},
        {"record", "ZT_RecordDirInfoXml", "document", rewriteDocument<ZT_RecordDirInfoXml>},
        {"record", "ZT_RecordDirInfoXml", "list", rewriteText<ZT_RecordDirInfoXml, std::vector<ZT_RecordDirInfo>>},
        // clang-format on
    };
}
