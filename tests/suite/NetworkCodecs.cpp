#include "tests/suite/Codecs.h"

#include "network/AVStreamMulticastAddrXml.h"
#include "network/BonjourServiceParamXml.h"
#include "network/BroadcastParamXml.h"
#include "network/CommunicationParamXml.h"
#include "network/DeviceAccessParamXml.h"
#include "network/DeviceDateTimeXml.h"
#include "network/DeviceServiceParamXml.h"
#include "network/FTPParamXml.h"
#include "network/HeartbeatParamXml.h"
#include "network/HostNetworkListXml.h"
#include "network/HostNetworkXml.h"
#include "network/IPFilterParamXml.h"
#include "network/IpRangeInfoXml.h"
#include "network/MTUParamXml.h"
#include "network/MulticastInfoXml.h"
#include "network/MulticastParamXml.h"
#include "network/NTPParamV2Xml.h"
#include "network/NTPParamXml.h"
#include "network/NetworkParamListXml.h"
#include "network/RebootTimeXml.h"
#include "network/SMTPParamXml.h"
#include "network/TimeRebootParamXml.h"
#include "network/TimeRebootXml.h"
#include "network/TimeZoneExParamXml.h"
#include "network/TimeZoneParamXml.h"
#include "network/UpdateParamXml.h"
#include "network/UploadPolicyXml.h"
#include "network/UpnpServiceParamXml.h"
#include "network/VideoDeviceAccessParamXml.h"
#include "network/WebParamXml.h"
#include "network/ZT_SMTPParamXml.h"
#include "tests/suite/Rewrite.h"

namespace
{

// Lists of broadcast settings have no text of their own.
bool rewriteBroadcasts(const std::string& text, std::string& rewritten)
{
    SafePointer<DomainXmlNode> parent;
    std::vector<BroadcastParam> params;
    if (!DomainXmlNode::parse(text, "Parent", parent) || !BroadcastParamXml().parseDomainXmlNode(parent, params))
        return false;
    SafePointer<DomainXmlNode> written(new DomainXmlNode("Parent"));
    return BroadcastParamXml().createDomainXmlNode(params, written) && DomainXmlNode::toString(written, rewritten);
}

} // namespace

std::vector<CodecCase> networkCodecs()
{
    return {
        // clang-format off
        {"network", "AVStreamMulticastAddrXml", "document", rewriteDocument<AVStreamMulticastAddrXml>},
        {"network", "AVStreamMulticastAddrXml", "list", rewriteText<AVStreamMulticastAddrXml, std::vector<AVStreamMulticastAddr>>},
        {"network", "BonjourServiceParamXml", "node", rewriteText<BonjourServiceParamXml, BonjourServiceParam>},
        {"network", "BroadcastParamXml", "node", rewriteText<BroadcastParamXml, BroadcastParam>},
        {"network", "BroadcastParamXml", "list", rewriteBroadcasts},
        {"network", "CommunicationParamXml", "document", rewriteDocument<CommunicationParamXml>},
        {"network", "CommunicationParamXml", "node", rewriteText<CommunicationParamXml, CommunicationParam>},
        {"network", "DeviceAccessParamXml", "document", rewriteDocument<DeviceAccessParamXml>},
        {"network", "DeviceDateTimeXml", "document", rewriteDocument<DeviceDateTimeXml>},
        {"network", "DeviceServiceParamXml", "document", rewriteDocument<DeviceServiceParamXml>},
        {"network", "FTPParamXml", "document", rewriteDocument<FTPParamXml>},
        {"network", "HeartbeatParamXml", "document", rewriteDocument<HeartbeatParamXml>},
        {"network", "HostNetworkListXml", "document", rewriteBackedDocument<HostNetworkListXml>},
        {"network", "HostNetworkXml", "document", rewriteDocument<HostNetworkXml>},
        {"network", "IPFilterParamXml", "node", rewriteText<IPFilterParamXml, IPFilterParam>},
        {"network", "IpRangeInfoXml", "node", rewriteText<IpRangeInfoXml, IpRangeInfo>},
        {"network", "IpRangeInfoXml", "list", rewriteText<IpRangeInfoXml, std::vector<IpRangeInfo>>},
        {"network", "MTUParamXml", "node", rewriteText<MTUParamXml, MTUParam>},
        {"network", "MulticastInfoXml", "document", rewriteDocument<MulticastInfoXml>},
        {"network", "MulticastParamXml", "list", rewriteText<MulticastParamXml, std::vector<MulticastParam>>},
        {"network", "NTPParamV2Xml", "document", rewriteDocument<NTPParamV2Xml>},
        {"network", "NTPParamV2Xml", "node", rewriteText<NTPParamV2Xml, NTPParamV2>},
        {"network", "NTPParamV2Xml", "list", rewriteText<NTPParamV2Xml, std::vector<NTPParamV2>>},
        {"network", "NTPParamXml", "document", rewriteDocument<NTPParamXml>},
        {"network", "NTPParamXml", "node", rewriteText<NTPParamXml, NTPParam>},
        {"network", "NTPParamXml", "list", rewriteText<NTPParamXml, std::vector<NTPParam>>},
        {"network", "NetworkParamListXml", "list", rewriteText<NetworkParamListXml, std::vector<NetworkParam>>},
        {"network", "RebootTimeXml", "list", rewriteText<RebootTimeXml, std::vector<RebootTime>>},
        {"network", "SMTPParamXml", "node", rewriteText<SMTPParamXml, SMTPParam>},
        {"network", "SMTPParamXml", "list", rewriteText<SMTPParamXml, std::vector<SMTPParam>>},
        {"network", "TimeRebootParamXml", "node", rewriteText<TimeRebootParamXml, TimeRebootParam>},
        {"network", "TimeRebootXml", "node", rewriteText<TimeRebootXml, TimeRebootParam>},
        {"network", "TimeZoneExParamXml", "document", rewriteDocument<TimeZoneExParamXml>},
        {"network", "TimeZoneExParamXml", "node", rewriteText<TimeZoneExParamXml, TimeZoneExParam>},
        {"network", "TimeZoneParamXml", "document", rewriteDocument<TimeZoneParamXml>},
        {"network", "TimeZoneParamXml", "node", rewriteText<TimeZoneParamXml, TimeZoneParam>},
        {"network", "UpdateParamXml", "document", rewriteDocument<UpdateParamXml>},
        {"network", "UploadPolicyXml", "document", rewriteDocument<UploadPolicyXml>},
        {"network", "UploadPolicyXml", "node", rewriteText<UploadPolicyXml, UploadPolicy>},
        {"network", "UpnpServiceParamXml", "node", rewriteText<UpnpServiceParamXml, UpnpServiceParam>},
        {"network", "VideoDeviceAccessParamXml", "document", rewriteDocument<VideoDeviceAccessParamXml>},
        {"network", "WebParamXml", "document", rewriteDocument<WebParamXml>},
        {"network", "ZT_SMTPParamXml", "node", rewriteText<ZT_SMTPParamXml, SMTPParam>},
        {"network", "ZT_SMTPParamXml", "list", rewriteText<ZT_SMTPParamXml, std::vector<SMTPParam>>},
        // clang-format on
    };
}
