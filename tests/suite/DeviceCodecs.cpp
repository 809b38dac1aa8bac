#include "tests/suite/Codecs.h"

#include "device/BlindAbilityXmlV2.h"
#include "device/CameraDeviceXml.h"
#include "device/CameraInfoXml.h"
#include "device/DeviceBaseInfoListXml.h"
#include "device/DeviceBaseInfoXml.h"
#include "device/PIRAlarmAbilityXml.h"
#include "tests/suite/Rewrite.h"

std::vector<CodecCase> deviceCodecs()
{
    return {
        // clang-format off
        {"device", "BlindAbilityXmlV2", "document", rewriteBackedDocument<BlindAbilityXmlV2>},
        {"device", "CameraDeviceXml", "document", rewriteDocument<CameraDeviceXml>},
        {"device", "CameraDeviceXml", "node", rewriteText<CameraDeviceXml, CameraDevice>},
        {"device", "CameraDeviceXml", "list", rewriteText<CameraDeviceXml, std::vector<CameraDevice>>},
        {"device", "CameraInfoXml", "node", rewriteText<CameraInfoXml, CameraInfo>},
        {"device", "CameraInfoXml", "list", rewriteText<CameraInfoXml, std::vector<CameraInfo>>},
        {"device", "DeviceBaseInfoListXml", "document", rewriteDocument<DeviceBaseInfoListXml>},
        {"device", "DeviceBaseInfoXml", "document", rewriteDocument<DeviceBaseInfoXml>},
        {"device", "PIRAlarmAbilityXml", "element", rewriteBackedElement<PIRAlarmAbilityXml>},
        // clang-format on
    };
}
