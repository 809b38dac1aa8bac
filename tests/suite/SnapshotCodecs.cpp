#include "tests/suite/Codecs.h"

#include "snapshot/AlarmSnapshotPolicyXml.h"
#include "snapshot/ManualSnapshotParameterXml.h"
#include "snapshot/RemoteSnapshotParamXml.h"
#include "snapshot/ScheduleSnapshotPolicyXml.h"
#include "snapshot/SnapShotConfigXml.h"
#include "snapshot/SnapshotDownParamXml.h"
#include "snapshot/SnapshotFileExXml.h"
#include "snapshot/SnapshotFileListExXml.h"
#include "snapshot/SnapshotFileListXml.h"
#include "snapshot/SnapshotFileXml.h"
#include "snapshot/SnapshotParamExXml.h"
#include "snapshot/SnapshotParamXml.h"
#include "snapshot/SnapshotParameterXml.h"
#include "snapshot/SnapshotPolicyXml.h"
#include "snapshot/SnapshotQueryConditionXml.h"
#include "snapshot/SnapshotSpaceInfoXml.h"
#include "snapshot/SnapshotTriggerParameterXml.h"
#include "snapshot/TrafficSnapshotPolicyXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> snapshotCodecs()
{
    return {
        // clang-format off
        {"snapshot", "AlarmSnapshotPolicyXml", "document", rewriteDocument<AlarmSnapshotPolicyXml>},
        {"snapshot", "AlarmSnapshotPolicyXml", "node", rewriteText<AlarmSnapshotPolicyXml, AlarmSnapshotPolicy>},
        {"snapshot", "ManualSnapshotParameterXml", "document", rewriteDocument<ManualSnapshotParameterXml>},
        {"snapshot", "RemoteSnapshotParamXml", "node", rewriteText<RemoteSnapshotParamXml, RemoteSnapshotParam>},
        {"snapshot", "ScheduleSnapshotPolicyXml", "document", rewriteDocument<ScheduleSnapshotPolicyXml>},
        {"snapshot", "ScheduleSnapshotPolicyXml", "node", rewriteText<ScheduleSnapshotPolicyXml, ScheduleSnapshotPolicy>},
        {"snapshot", "SnapShotConfigXml", "node", rewriteText<SnapShotConfigXml, SnapShotConfig>},
        {"snapshot", "SnapshotDownParamXml", "node", rewriteText<SnapshotDownParamXml, SnapshotDownParam>},
        {"snapshot", "SnapshotFileExXml", "document", rewriteDocument<SnapshotFileExXml>},
        {"snapshot", "SnapshotFileListExXml", "document", rewriteDocument<SnapshotFileListExXml>},
        {"snapshot", "SnapshotFileListXml", "document", rewriteDocument<SnapshotFileListXml>},
        {"snapshot", "SnapshotFileXml", "document", rewriteDocument<SnapshotFileXml>},
        {"snapshot", "SnapshotParamExXml", "node", rewriteText<SnapshotParamExXml, SnapshotParamEX>},
        {"snapshot", "SnapshotParamXml", "document", rewriteDocument<SnapshotParamXml>},
        {"snapshot", "SnapshotParameterXml", "document", rewriteDocument<SnapshotParameterXml>},
        {"snapshot", "SnapshotParameterXml", "node", rewriteText<SnapshotParameterXml, SnapshotParameter>},
        {"snapshot", "SnapshotPolicyXml", "document", rewriteDocument<SnapshotPolicyXml>},
        {"snapshot", "SnapshotPolicyXml", "list", rewriteText<SnapshotPolicyXml, std::vector<SnapshotPolicy>>},
        {"snapshot", "SnapshotQueryConditionXml", "document", rewriteDocument<SnapshotQueryConditionXml>},
        {"snapshot", "SnapshotSpaceInfoXml", "document", rewriteDocument<SnapshotSpaceInfoXml>},
        {"snapshot", "SnapshotTriggerParameterXml", "node", rewriteText<SnapshotTriggerParameterXml, SnapshotTriggerParameter>},
        {"snapshot", "TrafficSnapshotPolicyXml", "node", rewriteText<TrafficSnapshotPolicyXml, TrafficSnapshotPolicy>},
        // clang-format on
    };
}
