#include "tests/suite/Codecs.h"

#include "snapshot/SnapshotDownParamXml.h"
#include "snapshot/SnapshotFileExXml.h"
#include "snapshot/SnapshotFileListExXml.h"
#include "snapshot/SnapshotFileListXml.h"
#include "snapshot/SnapshotFileXml.h"
#include "snapshot/SnapshotQueryConditionXml.h"
#include "snapshot/SnapshotSpaceInfoXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> snapshotCodecs()
{
    return {
        // clang-format off
        {"snapshot", "SnapshotDownParamXml", "node", rewriteText<SnapshotDownParamXml, SnapshotDownParam>},
        {"snapshot", "SnapshotFileExXml", "document", rewriteDocument<SnapshotFileExXml>},
        {"snapshot", "SnapshotFileListExXml", "document", rewriteDocument<SnapshotFileListExXml>},
        {"snapshot", "SnapshotFileListXml", "document", rewriteDocument<SnapshotFileListXml>},
        {"snapshot", "SnapshotFileXml", "document", rewriteDocument<SnapshotFileXml>},
        {"snapshot", "SnapshotQueryConditionXml", "document", rewriteDocument<SnapshotQueryConditionXml>},
        {"snapshot", "SnapshotSpaceInfoXml", "document", rewriteDocument<SnapshotSpaceInfoXml>},
        // clang-format on
    };
}
