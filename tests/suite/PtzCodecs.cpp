#include "tests/suite/Codecs.h"

#include "ptz/CashRegistersParamXml.h"
#include "ptz/ComDataXml.h"
#include "ptz/ExternInterfaceXml.h"
#include "ptz/PTZAbilityParamXml.h"
#include "ptz/PTZKeyboardParamXml.h"
#include "ptz/PTZParamExXml.h"
#include "ptz/PTZParamXml.h"
#include "ptz/PTZPresetXml.h"
#include "ptz/PTZProtocolXml.h"
#include "ptz/PTZTimerTimeSegmentXml.h"
#include "ptz/PTZTimerXml.h"
#include "ptz/RS232DeviceInfoXml.h"
#include "ptz/RS232ParamXml.h"
#include "ptz/RS485ChannelRequestXml.h"
#include "ptz/RS485DeviceInfoXml.h"
#include "ptz/RS485DeviceXml.h"
#include "ptz/ScanRegistersParamXml.h"
#include "tests/suite/Rewrite.h"

namespace
{

bool rewriteScan(const std::string& text, std::string& rewritten)
{
    ScanRegistersParam param;
    return ScanRegistersParamXml().parseScanRegistersParamXml(text, param) &&
           ScanRegistersParamXml().createXmlString(param, rewritten);
}

bool rewriteScanNode(const std::string& text, std::string& rewritten)
{
    SafePointer<DomainXmlNode> parsed;
    SafePointer<DomainXmlNode> written(new DomainXmlNode("ScanRegistersParam"));
    ScanRegistersParam param;
    return DomainXmlNode::parse(text, "ScanRegistersParam", parsed) &&
           ScanRegistersParamXml().parseDomainXmlNode(parsed, param) &&
           ScanRegistersParamXml().createDomainXmlNode(param, written) && DomainXmlNode::toString(written, rewritten);
}

} // namespace

std::vector<CodecCase> ptzCodecs()
{
    return {
        // clang-format off
        {"ptz", "CashRegistersParamXml", "document", rewriteDocument<CashRegistersParamXml>},
        {"ptz", "CashRegistersParamXml", "node", rewriteText<CashRegistersParamXml, CashRegistersParam>},
        {"ptz", "ComDataXml", "document", rewriteDocument<ComDataXml>},
        {"ptz", "ExternInterfaceXml", "document", rewriteDocument<ExternInterfaceXml>},
        {"ptz", "ExternInterfaceXml", "node", rewriteText<ExternInterfaceXml, ExternInterface>},
        {"ptz", "PTZAbilityParamXml", "node", rewriteText<PTZAbilityParamXml, PTZAbilityParam>},
        {"ptz", "PTZKeyboardParamXml", "document", rewriteDocument<PTZKeyboardParamXml>},
        {"ptz", "PTZKeyboardParamXml", "node", rewriteText<PTZKeyboardParamXml, PTZKeyboardParam>},
        {"ptz", "PTZParamExXml", "node", rewriteText<PTZParamExXml, PTZParamEx>},
        {"ptz", "PTZParamXml", "document", rewriteDocument<PTZParamXml>},
        {"ptz", "PTZParamXml", "node", rewriteText<PTZParamXml, PTZParam>},
        {"ptz", "PTZParamXml", "list", rewriteText<PTZParamXml, std::vector<PTZParam>>},
        {"ptz", "PTZPresetXml", "document", rewriteDocument<PTZPresetXml>},
        {"ptz", "PTZProtocolXml", "document", rewriteDocument<PTZProtocolXml>},
        {"ptz", "PTZProtocolXml", "list", rewriteText<PTZProtocolXml, std::vector<PTZProtocol>>},
        {"ptz", "PTZTimerTimeSegmentXml", "node", rewriteText<PTZTimerTimeSegmentXml, PTZTimerTimeSegment>, "node"},
        {"ptz", "PTZTimerXml", "list", rewriteText<PTZTimerXml, std::vector<PTZTimer>>, "list"},
        {"ptz", "RS232DeviceInfoXml", "document", rewriteDocument<RS232DeviceInfoXml>},
        {"ptz", "RS232ParamXml", "document", rewriteDocument<RS232ParamXml>},
        {"ptz", "RS485ChannelRequestXml", "document", rewriteDocument<RS485ChannelRequestXml>},
        {"ptz", "RS485DeviceInfoXml", "document", rewriteDocument<RS485DeviceInfoXml>},
        {"ptz", "RS485DeviceXml", "document", rewriteDocument<RS485DeviceXml>},
        {"ptz", "RS485DeviceXml", "node", rewriteText<RS485DeviceXml, RS485Device>},
        {"ptz", "ScanRegistersParamXml", "document", rewriteScan},
        {"ptz", "ScanRegistersParamXml", "node", rewriteScanNode},
        // clang-format on
    };
}
