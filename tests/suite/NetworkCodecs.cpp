#include "tests/suite/Codecs.h"

#include "network/AVStreamMulticastAddrXml.h"
#include "network/BonjourServiceParamXml.h"
#include "network/BroadcastParamXml.h"
#include "network/CMSCameraRegisterInfoParamXml.h"
#include "network/CMSDeviceRegisterInfoParamXml.h"
#include "network/CMSExternConfigParamXml.h"
#include "network/CMSProtocolParamXml.h"
#include "network/CMSRegisterInfoParamXml.h"
#include "network/CMSRegisterParamXml.h"
#include "network/CMSRegisterServerParamXml.h"
#include "network/CommunicationParamXml.h"
#include "network/DDNSInfoXml.h"
#include "network/DDNSParamV2Xml.h"
#include "network/DDNSParamXml.h"
#include "network/DDNSProviderListXml.h"
#include "network/DDNSProviderXml.h"
#include "network/DeviceAccessParamXml.h"
#include "network/DeviceDateTimeXml.h"
#include "network/DeviceServiceParamXml.h"
#include "network/FTPParamXml.h"
#include "network/HeartbeatParamXml.h"
#include "network/HostNetworkListXml.h"
#include "network/HostNetworkXml.h"
#include "network/I3GMessageConnectPolicyParamXml.h"
#include "network/I3GNetworkParamXml.h"
#include "network/I3GPolicyParamXml.h"
#include "network/I3GStateParamXml.h"
#include "network/I3GTimeConnectPolicyParamXml.h"
#include "network/IPFilterParamXml.h"
#include "network/IpRangeInfoXml.h"
#include "network/MTUParamXml.h"
#include "network/MulticastInfoXml.h"
#include "network/MulticastParamXml.h"
#include "network/NTPParamV2Xml.h"
#include "network/NTPParamXml.h"
#include "network/NetworkParamListXml.h"
#include "network/PPPoEParamXml.h"
#include "network/ProtocolConfigParamXml.h"
#include "network/ProtocolSecurityParamXml.h"
#include "network/ProtocolTypeInfoXml.h"
#include "network/RebootTimeXml.h"
#include "network/RegisterAlarmServerParamXml.h"
#include "network/RegisterParamXml.h"
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
#include "network/WifiHotspotParamListXml.h"
#include "network/WifiHotspotParamXml.h"
#include "network/WifiNetworkParamXml.h"
#include "network/WifiParamListXml.h"
#include "network/WifiParamXml.h"
#include "network/WifiStateParamXml.h"
#include "network/ZT_SMTPParamXml.h"
#include "network/ZT_WifiParamXml.h"
#include "network/ZentarDDNSParamXml.h"
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
        {"network", "CMSCameraRegisterInfoParamXml", "document", rewriteDocument<CMSCameraRegisterInfoParamXml>},
        {"network", "CMSCameraRegisterInfoParamXml", "node", rewriteText<CMSCameraRegisterInfoParamXml, CMSCameraRegisterInfoParam>},
        {"network", "CMSCameraRegisterInfoParamXml", "list", rewriteText<CMSCameraRegisterInfoParamXml, std::vector<CMSCameraRegisterInfoParam>>},
        {"network", "CMSDeviceRegisterInfoParamXml", "document", rewriteDocument<CMSDeviceRegisterInfoParamXml>},
        {"network", "CMSDeviceRegisterInfoParamXml", "node", rewriteText<CMSDeviceRegisterInfoParamXml, CMSDeviceRegisterInfoParam>},
        {"network", "CMSExternConfigParamXml", "document", rewriteDocument<CMSExternConfigParamXml>},
        {"network", "CMSExternConfigParamXml", "node", rewriteText<CMSExternConfigParamXml, CMSExternConfigParam>},
        {"network", "CMSProtocolParamXml", "document", rewriteDocument<CMSProtocolParamXml>},
        {"network", "CMSRegisterInfoParamXml", "node", rewriteText<CMSRegisterInfoParamXml, CMSRegisterInfoParam>},
        {"network", "CMSRegisterParamXml", "node", rewriteText<CMSRegisterParamXml, CMSRegisterParam>},
        {"network", "CMSRegisterServerParamXml", "document", rewriteDocument<CMSRegisterServerParamXml>},
        {"network", "CMSRegisterServerParamXml", "node", rewriteText<CMSRegisterServerParamXml, CMSRegisterServerParam>},
        {"network", "CommunicationParamXml", "document", rewriteDocument<CommunicationParamXml>},
        {"network", "CommunicationParamXml", "node", rewriteText<CommunicationParamXml, CommunicationParam>},
        {"network", "DDNSInfoXml", "node", rewriteText<DDNSInfoXml, DDNSInfo>},
        {"network", "DDNSInfoXml", "list", rewriteText<DDNSInfoXml, std::vector<DDNSInfo>>},
        {"network", "DDNSParamV2Xml", "document", rewriteDocument<DDNSParamV2Xml>},
        {"network", "DDNSParamV2Xml", "node", rewriteText<DDNSParamV2Xml, DDNSParamV2>},
        {"network", "DDNSParamXml", "document", rewriteDocument<DDNSParamXml>},
        {"network", "DDNSParamXml", "node", rewriteText<DDNSParamXml, DDNSParam>},
        {"network", "DDNSProviderListXml", "node", rewriteText<DDNSProviderListXml, DDNSProvider>},
        {"network", "DDNSProviderListXml", "list", rewriteText<DDNSProviderListXml, std::vector<DDNSProvider>>},
        {"network", "DDNSProviderXml", "document", rewriteDocument<DDNSProviderXml>},
        {"network", "DDNSProviderXml", "list", rewriteText<DDNSProviderXml, std::vector<DDNSProvider>>},
        {"network", "DeviceAccessParamXml", "document", rewriteDocument<DeviceAccessParamXml>},
        {"network", "DeviceDateTimeXml", "document", rewriteDocument<DeviceDateTimeXml>},
        {"network", "DeviceServiceParamXml", "document", rewriteDocument<DeviceServiceParamXml>},
        {"network", "FTPParamXml", "document", rewriteDocument<FTPParamXml>},
        {"network", "HeartbeatParamXml", "document", rewriteDocument<HeartbeatParamXml>},
        {"network", "HostNetworkListXml", "document", rewriteBackedDocument<HostNetworkListXml>},
        {"network", "HostNetworkXml", "document", rewriteDocument<HostNetworkXml>},
        {"network", "I3GMessageConnectPolicyParamXml", "document", rewriteDocument<I3GMessageConnectPolicyParamXml>},
        {"network", "I3GMessageConnectPolicyParamXml", "node", rewriteText<I3GMessageConnectPolicyParamXml, I3GMessageConnectPolicyParam>},
        {"network", "I3GMessageConnectPolicyParamXml", "list", rewriteText<I3GMessageConnectPolicyParamXml, std::vector<I3GMessageConnectPolicyParam>>},
        {"network", "I3GNetworkParamXml", "document", rewriteDocument<I3GNetworkParamXml>},
        {"network", "I3GPolicyParamXml", "document", rewriteDocument<I3GPolicyParamXml>},
        {"network", "I3GPolicyParamXml", "node", rewriteText<I3GPolicyParamXml, I3GPolicyParam>},
        {"network", "I3GPolicyParamXml", "list", rewriteText<I3GPolicyParamXml, std::vector<I3GPolicyParam>>},
        {"network", "I3GStateParamXml", "document", rewriteDocument<I3GStateParamXml>},
        {"network", "I3GTimeConnectPolicyParamXml", "document", rewriteDocument<I3GTimeConnectPolicyParamXml>},
        {"network", "I3GTimeConnectPolicyParamXml", "node", rewriteText<I3GTimeConnectPolicyParamXml, I3GTimeConnectPolicyParam>},
        {"network", "I3GTimeConnectPolicyParamXml", "list", rewriteText<I3GTimeConnectPolicyParamXml, std::vector<I3GTimeConnectPolicyParam>>},
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
        {"network", "PPPoEParamXml", "document", rewriteDocument<PPPoEParamXml>},
        {"network", "PPPoEParamXml", "node", rewriteText<PPPoEParamXml, PPPoEParam>},
        {"network", "ProtocolConfigParamXml", "node", rewriteText<ProtocolConfigParamXml, ProtocolConfigParam>},
        {"network", "ProtocolConfigParamXml", "list", rewriteText<ProtocolConfigParamXml, std::vector<ProtocolConfigParam>>},
        {"network", "ProtocolSecurityParamXml", "node", rewriteText<ProtocolSecurityParamXml, ProtocolSecurityParam>},
        {"network", "ProtocolTypeInfoXml", "list", rewriteText<ProtocolTypeInfoXml, std::vector<ProtocolTypeInfo>>},
        {"network", "RebootTimeXml", "list", rewriteText<RebootTimeXml, std::vector<RebootTime>>},
        {"network", "RegisterAlarmServerParamXml", "document", rewriteDocument<RegisterAlarmServerParamXml>},
        {"network", "RegisterParamXml", "document", rewriteDocument<RegisterParamXml>},
        {"network", "RegisterParamXml", "node", rewriteText<RegisterParamXml, RegisterParam>},
        {"network", "RegisterParamXml", "list", rewriteText<RegisterParamXml, std::vector<RegisterParam>>},
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
        {"network", "WifiHotspotParamListXml", "document", rewriteDocument<WifiHotspotParamListXml>},
        {"network", "WifiHotspotParamXml", "document", rewriteDocument<WifiHotspotParamXml>},
        {"network", "WifiNetworkParamXml", "document", rewriteDocument<WifiNetworkParamXml>},
        {"network", "WifiParamListXml", "document", rewriteDocument<WifiParamListXml>},
        {"network", "WifiParamXml", "document", rewriteDocument<WifiParamXml>},
        {"network", "WifiParamXml", "node", rewriteText<WifiParamXml, WifiParam>},
        {"network", "WifiParamXml", "list", rewriteText<WifiParamXml, std::vector<WifiParam>>},
        {"network", "WifiStateParamXml", "document", rewriteDocument<WifiStateParamXml>},
        {"network", "ZT_SMTPParamXml", "node", rewriteText<ZT_SMTPParamXml, SMTPParam>},
        {"network", "ZT_SMTPParamXml", "list", rewriteText<ZT_SMTPParamXml, std::vector<SMTPParam>>},
        {"network", "ZT_WifiParamXml", "document", rewriteDocument<ZT_WifiParamXml>},
        {"network", "ZT_WifiParamXml", "node", rewriteText<ZT_WifiParamXml, ZT_WifiParam>},
        {"network", "ZT_WifiParamXml", "list", rewriteText<ZT_WifiParamXml, std::vector<ZT_WifiParam>>},
        {"network", "ZentarDDNSParamXml", "document", rewriteDocument<ZentarDDNSParamXml>},
        {"network", "ZentarDDNSParamXml", "node", rewriteText<ZentarDDNSParamXml, ZentarDDNSParam>},
        // clang-format on
    };
}
