#include "tests/suite/Codecs.h"

#include "record/AlarmExTypeXml.h"
#include "record/DiskFormatExXml.h"
#include "record/DiskLoadXml.h"
#include "record/DiskUnloadXml.h"
#include "record/RecordDirInfoXml.h"
#include "record/RecordFileExXml.h"
#include "record/RecordFileSearchParamXml.h"
#include "record/RecordFileXml.h"
#include "record/RecordInfoXml.h"
#include "record/RecordLogInfoXml.h"
#include "record/RecordQueryConditionXml.h"
#include "record/RecordQueryResultXml.h"
#include "record/RecordSummaryInfoXml.h"
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
        {"record", "DiskFormatExXml", "document", rewriteDocument<DiskFormatExXml>},
        {"record", "DiskLoadXml", "document", rewriteDocument<DiskLoadXml>},
        {"record", "DiskUnloadXml", "document", rewriteDocument<DiskUnloadXml>},
        {"record", "RecordDirInfoXml", "document", rewriteDocument<RecordDirInfoXml>},
        {"record", "RecordDirInfoXml", "list", rewriteText<RecordDirInfoXml, std::vector<RecordDirInfo>>},
        {"record", "RecordFileExXml", "document", rewriteDocument<RecordFileExXml>},
        {"record", "RecordFileSearchParamXml", "document", rewriteDocument<RecordFileSearchParamXml>, "document"},
        {"record", "RecordFileXml", "document", rewriteDocument<RecordFileXml>},
        {"record", "RecordInfoXml", "document", rewriteDocument<RecordInfoXml>},
        {"record", "RecordLogInfoXml", "document", rewriteDocument<RecordLogInfoXml>, "document"},
        {"record", "RecordQueryConditionXml", "document", rewriteDocument<RecordQueryConditionXml>},
        {"record", "RecordQueryResultXml", "document", rewriteDocument<RecordQueryResultXml>},
        {"record", "RecordSummaryInfoXml", "node", rewriteText<RecordSummaryInfoXml, RecordSummaryInfo>},
        {"record", "ZT_RecordDirInfoXml", "document", rewriteDocument<ZT_RecordDirInfoXml>},
        {"record", "ZT_RecordDirInfoXml", "list", rewriteText<ZT_RecordDirInfoXml, std::vector<ZT_RecordDirInfo>>},
        // clang-format on
    };
}
