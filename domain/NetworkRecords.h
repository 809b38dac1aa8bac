#pragma once

/// @file
/// The records of the network and its services.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include "domain/AlarmRecords.h"
#include "domain/CoreRecords.h"

#include <cstdint>
#include <string>
#include <vector>

/// How the device keeps its clock by a time server.
class NTPParam
{
public:
    /// Whether it asks a server at all.
    bool getNTPEnableFlag() const { return ntpEnableFlag_; }
    void setNTPEnableFlag(bool ntpEnableFlag) { ntpEnableFlag_ = ntpEnableFlag; }

    /// The server's address or name.
    const std::string& getNTPIp() const { return ntpIp_; }
    void setNTPIp(const std::string& ntpIp) { ntpIp_ = ntpIp; }

    /// The server's port; 123 by convention.
    std::uint16_t getNTPPort() const { return ntpPort_; }
    void setNTPPort(std::uint16_t ntpPort) { ntpPort_ = ntpPort; }

    /// Time from one query to the next, in the device's unit.
    int getNTPRunTime() const { return ntpRunTime_; }
    void setNTPRunTime(int ntpRunTime) { ntpRunTime_ = ntpRunTime; }

    /// Version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

private:
    bool ntpEnableFlag_ = false;
    std::string ntpIp_;
    std::uint16_t ntpPort_ = 0;
    int ntpRunTime_ = 0;
    int ipProtoVer_ = 0;
};

/// Where a device stands in the network: addresses and the ports that it listens on.
class HostNetwork
{
public:
    /// The device's identity on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The network card, as the device numbers it.
    int getNetId() const { return netId_; }
    void setNetId(int netId) { netId_ = netId; }

    /// Whether the address comes from a DHCP server.
    bool getAutoGetIpFlag() const { return autoGetIpFlag_; }
    void setAutoGetIpFlag(bool autoGetIpFlag) { autoGetIpFlag_ = autoGetIpFlag; }

    /// The device's own address.
    const std::string& getLocalIp() const { return localIp_; }
    void setLocalIp(const std::string& localIp) { localIp_ = localIp; }

    /// Mask of its subnet.
    const std::string& getLocalSubnetMask() const { return localSubnetMask_; }
    void setLocalSubnetMask(const std::string& localSubnetMask) { localSubnetMask_ = localSubnetMask; }

    /// Address of the gateway.
    const std::string& getGateway() const { return gateway_; }
    void setGateway(const std::string& gateway) { gateway_ = gateway; }

    /// Whether the name servers come from a DHCP server.
    bool getAutoGetDNSFlag() const { return autoGetDNSFlag_; }
    void setAutoGetDNSFlag(bool autoGetDNSFlag) { autoGetDNSFlag_ = autoGetDNSFlag; }

    /// Address of the first name server.
    const std::string& getPrimaryDNSIp() const { return primaryDNSIp_; }
    void setPrimaryDNSIp(const std::string& primaryDNSIp) { primaryDNSIp_ = primaryDNSIp; }

    /// Address of the name server to ask when the first is silent.
    const std::string& getSpareDNSIp() const { return spareDNSIp_; }
    void setSpareDNSIp(const std::string& spareDNSIp) { spareDNSIp_ = spareDNSIp; }

    /// Port for commands.
    std::uint16_t getControlPort() const { return controlPort_; }
    void setControlPort(std::uint16_t controlPort) { controlPort_ = controlPort; }

    /// Port for registration.
    std::uint16_t getRegisterPort() const { return registerPort_; }
    void setRegisterPort(std::uint16_t registerPort) { registerPort_ = registerPort; }

    /// Port of the web server.
    std::uint16_t getHttpPort() const { return httpPort_; }
    void setHttpPort(std::uint16_t httpPort) { httpPort_ = httpPort; }

    /// Version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

private:
    std::string deviceId_;
    int netId_ = 0;
    bool autoGetIpFlag_ = false;
    std::string localIp_;
    std::string localSubnetMask_;
    std::string gateway_;
    bool autoGetDNSFlag_ = false;
    std::string primaryDNSIp_;
    std::string spareDNSIp_;
    std::uint16_t controlPort_ = 0;
    std::uint16_t registerPort_ = 0;
    std::uint16_t httpPort_ = 0;
    int ipProtoVer_ = 0;
};

/// One network card of a device.
class NetworkParam
{
public:
    /// The card, as the device numbers it.
    int getNetworkCardId() const { return networkCardId_; }
    void setNetworkCardId(int networkCardId) { networkCardId_ = networkCardId; }

    /// How the card works beside the others, as the device numbers it.
    int getWorkingType() const { return workingType_; }
    void setWorkingType(int workingType) { workingType_ = workingType; }

    /// Whether the address comes from a DHCP server.
    bool getAutoGetIpFlag() const { return autoGetIpFlag_; }
    void setAutoGetIpFlag(bool autoGetIpFlag) { autoGetIpFlag_ = autoGetIpFlag; }

    /// Address of that server.
    const std::string& getDhcpIp() const { return dhcpIp_; }
    void setDhcpIp(const std::string& dhcpIp) { dhcpIp_ = dhcpIp; }

    /// The card's own address.
    const std::string& getLocalIp() const { return localIp_; }
    void setLocalIp(const std::string& localIp) { localIp_ = localIp; }

    /// Mask of its subnet.
    const std::string& getLocalSubnetMask() const { return localSubnetMask_; }
    void setLocalSubnetMask(const std::string& localSubnetMask) { localSubnetMask_ = localSubnetMask; }

    /// Address of the gateway.
    const std::string& getGateway() const { return gateway_; }
    void setGateway(const std::string& gateway) { gateway_ = gateway; }

    /// Whether the name servers come from a DHCP server.
    bool getAutoGetDNSFlag() const { return autoGetDNSFlag_; }
    void setAutoGetDNSFlag(bool autoGetDNSFlag) { autoGetDNSFlag_ = autoGetDNSFlag; }

    /// Address of the first name server.
    const std::string& getPrimaryDNSIp() const { return primaryDNSIp_; }
    void setPrimaryDNSIp(const std::string& primaryDNSIp) { primaryDNSIp_ = primaryDNSIp; }

    /// Address of the name server to ask when the first is silent.
    const std::string& getSpareDNSIp() const { return spareDNSIp_; }
    void setSpareDNSIp(const std::string& spareDNSIp) { spareDNSIp_ = spareDNSIp; }

    /// Version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

private:
    int networkCardId_ = 0;
    int workingType_ = 0;
    bool autoGetIpFlag_ = false;
    std::string dhcpIp_;
    std::string localIp_;
    std::string localSubnetMask_;
    std::string gateway_;
    bool autoGetDNSFlag_ = false;
    std::string primaryDNSIp_;
    std::string spareDNSIp_;
    int ipProtoVer_ = 0;
};

/// The address and the ports by which a device is reached.
class DeviceAccessParam
{
public:
    /// The device's address.
    const std::string& getLocalIp() const { return localIp_; }
    void setLocalIp(const std::string& localIp) { localIp_ = localIp; }

    /// Port for commands.
    std::uint16_t getControlPort() const { return controlPort_; }
    void setControlPort(std::uint16_t controlPort) { controlPort_ = controlPort; }

    /// Port for video.
    std::uint16_t getVideoTransferPort() const { return videoTransferPort_; }
    void setVideoTransferPort(std::uint16_t videoTransferPort) { videoTransferPort_ = videoTransferPort; }

    /// Port for sound.
    std::uint16_t getAudioTransferPort() const { return audioTransferPort_; }
    void setAudioTransferPort(std::uint16_t audioTransferPort) { audioTransferPort_ = audioTransferPort; }

    /// Port of the web server.
    std::uint16_t getHttpPort() const { return httpPort_; }
    void setHttpPort(std::uint16_t httpPort) { httpPort_ = httpPort; }

private:
    std::string localIp_;
    std::uint16_t controlPort_ = 0;
    std::uint16_t videoTransferPort_ = 0;
    std::uint16_t audioTransferPort_ = 0;
    std::uint16_t httpPort_ = 0;
};

/// Which services a device starts.
class DeviceServiceParam
{
public:
    /// Whether the alarm centre is started.
    bool getAlarmCenterStartFlag() const { return alarmCenterStartFlag_; }
    void setAlarmCenterStartFlag(bool alarmCenterStartFlag) { alarmCenterStartFlag_ = alarmCenterStartFlag; }

private:
    bool alarmCenterStartFlag_ = false;
};

/// How a recorder reaches a camera that is attached to it.
class VideoDeviceAccessParam
{
public:
    /// The camera's address.
    const std::string& getDeviceIP() const { return deviceIP_; }
    void setDeviceIP(const std::string& deviceIP) { deviceIP_ = deviceIP; }

    /// Its control port.
    std::uint16_t getDevicePort() const { return devicePort_; }
    void setDevicePort(std::uint16_t devicePort) { devicePort_ = devicePort; }

    /// Version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

    /// Its kind, as the makers number it.
    int getDeviceType() const { return deviceType_; }
    void setDeviceType(int deviceType) { deviceType_ = deviceType; }

    /// Its identity on the network.
    const std::string& getDeviceID() const { return deviceID_; }
    void setDeviceID(const std::string& deviceID) { deviceID_ = deviceID; }

    /// Its name, as set by the user.
    const std::string& getDeviceName() const { return deviceName_; }
    void setDeviceName(const std::string& deviceName) { deviceName_ = deviceName; }

    /// Name of the account by which it is reached.
    const std::string& getUserID() const { return userID_; }
    void setUserID(const std::string& userID) { userID_ = userID; }

    /// Password of that account, in clear.
    const std::string& getPassword() const { return password_; }
    void setPassword(const std::string& password) { password_ = password; }

    /// Whether it is reached through a router, at the address and ports below.
    bool getRouterMappingEnableFlag() const { return routerMappingEnableFlag_; }
    void setRouterMappingEnableFlag(bool routerMappingEnableFlag)
    {
        routerMappingEnableFlag_ = routerMappingEnableFlag;
    }

    /// The router's address.
    const std::string& getRouterAddr() const { return routerAddr_; }
    void setRouterAddr(const std::string& routerAddr) { routerAddr_ = routerAddr; }

    /// The router's port for commands.
    std::uint16_t getRouterMappingControlPort() const { return routerMappingControlPort_; }
    void setRouterMappingControlPort(std::uint16_t routerMappingControlPort)
    {
        routerMappingControlPort_ = routerMappingControlPort;
    }

    /// The router's port for picture and sound over TCP.
    std::uint16_t getRouterMappingTCPAVPort() const { return routerMappingTCPAVPort_; }
    void setRouterMappingTCPAVPort(std::uint16_t routerMappingTCPAVPort)
    {
        routerMappingTCPAVPort_ = routerMappingTCPAVPort;
    }

    /// The router's port for RTP.
    std::uint16_t getRouterMappingRTPPort() const { return routerMappingRTPPort_; }
    void setRouterMappingRTPPort(std::uint16_t routerMappingRTPPort) { routerMappingRTPPort_ = routerMappingRTPPort; }

    /// The router's port for RTCP.
    std::uint16_t getRouterMappingRTCPPort() const { return routerMappingRTCPPort_; }
    void setRouterMappingRTCPPort(std::uint16_t routerMappingRTCPPort)
    {
        routerMappingRTCPPort_ = routerMappingRTCPPort;
    }

    /// The router's port for RTSP.
    std::uint16_t getRouterMappingRTSPPort() const { return routerMappingRTSPPort_; }
    void setRouterMappingRTSPPort(std::uint16_t routerMappingRTSPPort)
    {
        routerMappingRTSPPort_ = routerMappingRTSPPort;
    }

private:
    std::string deviceIP_;
    std::uint16_t devicePort_ = 0;
    int ipProtoVer_ = 0;
    int deviceType_ = 0;
    std::string deviceID_;
    std::string deviceName_;
    std::string userID_;
    std::string password_;
    bool routerMappingEnableFlag_ = false;
    std::string routerAddr_;
    std::uint16_t routerMappingControlPort_ = 0;
    std::uint16_t routerMappingTCPAVPort_ = 0;
    std::uint16_t routerMappingRTPPort_ = 0;
    std::uint16_t routerMappingRTCPPort_ = 0;
    std::uint16_t routerMappingRTSPPort_ = 0;
};

/// The group address to which a camera sends its stream.
class AVStreamMulticastAddr
{
public:
    /// The device's identity on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The camera's number on the device.
    int getCameraId() const { return cameraId_; }
    void setCameraId(int cameraId) { cameraId_ = cameraId; }

    /// The group address.
    const std::string& getMulticastIP() const { return multicastIP_; }
    void setMulticastIP(const std::string& multicastIP) { multicastIP_ = multicastIP; }

    /// The port of the group. Getter and setter are spelt unlike each other, and neither says "port".
    int getMuticastProt() const { return multicastProt_; }
    void setMulticastProt(int multicastProt) { multicastProt_ = multicastProt; }

private:
    std::string deviceId_;
    int cameraId_ = 0;
    std::string multicastIP_;
    int multicastProt_ = 0;
};

/// How a device announces itself to a group.
class MulticastParam
{
public:
    /// Whether it does.
    bool getMulticastEnableFlag() const { return multicastEnableFlag_; }
    void setMulticastEnableFlag(bool multicastEnableFlag) { multicastEnableFlag_ = multicastEnableFlag; }

    /// The port of the group.
    std::uint16_t getMulticastPort() const { return multicastPort_; }
    void setMulticastPort(std::uint16_t multicastPort) { multicastPort_ = multicastPort; }

    /// Time from one announcement to the next, in the device's unit.
    int getMulticastInterval() const { return multicastInterval_; }
    void setMulticastInterval(int multicastInterval) { multicastInterval_ = multicastInterval; }

    /// The group address.
    const std::string& getMulticastHostIP() const { return multicastHostIP_; }
    void setMulticastHostIP(const std::string& multicastHostIP) { multicastHostIP_ = multicastHostIP; }

    /// Version of the Internet protocol, as the device numbers it.
    int getMulticastIPProtoVer() const { return multicastIPProtoVer_; }
    void setMulticastIPProtoVer(int multicastIPProtoVer) { multicastIPProtoVer_ = multicastIPProtoVer; }

private:
    bool multicastEnableFlag_ = false;
    std::uint16_t multicastPort_ = 0;
    int multicastInterval_ = 0;
    std::string multicastHostIP_;
    int multicastIPProtoVer_ = 0;
};

/// How a device announces itself to all of its subnet.
class BroadcastParam
{
public:
    /// Whether it does.
    bool getBroadcastEnableFlag() const { return broadcastEnableFlag_; }
    void setBroadcastEnableFlag(bool broadcastEnableFlag) { broadcastEnableFlag_ = broadcastEnableFlag; }

    /// The port that it sends to.
    std::uint16_t getBroadcastPort() const { return broadcastPort_; }
    void setBroadcastPort(std::uint16_t broadcastPort) { broadcastPort_ = broadcastPort; }

    /// Time from one announcement to the next, in the device's unit.
    int getBroadcastInterval() const { return broadcastInterval_; }
    void setBroadcastInterval(int broadcastInterval) { broadcastInterval_ = broadcastInterval; }

    /// Without a meaning yet; carried as it is.
    int getReserveValue1() const { return reserveValue1_; }
    void setReserveValue1(int reserveValue1) { reserveValue1_ = reserveValue1; }

    /// Without a meaning yet; carried as it is.
    int getReserveValue2() const { return reserveValue2_; }
    void setReserveValue2(int reserveValue2) { reserveValue2_ = reserveValue2; }

    /// Without a meaning yet; carried as it is.
    int getReserveValue3() const { return reserveValue3_; }
    void setReserveValue3(int reserveValue3) { reserveValue3_ = reserveValue3; }

private:
    bool broadcastEnableFlag_ = false;
    std::uint16_t broadcastPort_ = 0;
    int broadcastInterval_ = 0;
    int reserveValue1_ = 0;
    int reserveValue2_ = 0;
    int reserveValue3_ = 0;
};

/// How a device talks to its peers.
class CommunicationParam
{
public:
    /// The versions of the Internet protocol in use, as the device numbers them.
    int getIPProtoFlag() const { return ipProtoFlag_; }
    void setIPProtoFlag(int ipProtoFlag) { ipProtoFlag_ = ipProtoFlag; }

private:
    int ipProtoFlag_ = 0;
};

/// Which addresses may reach a device, or may not.
class IPFilterParam
{
public:
    /// Whether it filters at all.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// Whether the addresses are those let in or those kept out, as the device numbers it.
    int getFilterType() const { return filterType_; }
    void setFilterType(int filterType) { filterType_ = filterType; }

    /// The ranges of addresses.
    /// @{
    const std::vector<IPAddrSegment>& getIPAddrList() const { return ipAddrList_; }
    std::vector<IPAddrSegment>& getIPAddrList() { return ipAddrList_; }
    void setIPAddrList(const std::vector<IPAddrSegment>& ipAddrList) { ipAddrList_ = ipAddrList; }
    /// @}

private:
    bool enableFlag_ = false;
    int filterType_ = 0;
    std::vector<IPAddrSegment> ipAddrList_;
};

/// A range of network addresses, both ends included.
class IpRangeInfo
{
public:
    /// First address, as text; stored in @p beginIpAddr.
    void getBeginIpAddr(std::string& beginIpAddr) const { beginIpAddr = beginIpAddr_; }
    void setBeginIpAddr(const std::string& beginIpAddr) { beginIpAddr_ = beginIpAddr; }

    /// Last address, as text; stored in @p endIpAddr.
    void getEndIpAddr(std::string& endIpAddr) const { endIpAddr = endIpAddr_; }
    void setEndIpAddr(const std::string& endIpAddr) { endIpAddr_ = endIpAddr; }

private:
    std::string beginIpAddr_;
    std::string endIpAddr_;
};

/// How large the packets of a device are.
class MTUParam
{
public:
    /// Largest size of a packet, in bytes.
    int getMTUValue() const { return mtuValue_; }
    void setMTUValue(int mtuValue) { mtuValue_ = mtuValue; }

private:
    int mtuValue_ = 0;
};

/// Whether a device is found, and asks for its ports, by UPnP.
class UpnpServiceParam
{
public:
    /// Whether it is.
    bool getUpnpEnableFlag() const { return upnpEnableFlag_; }
    void setUpnpEnableFlag(bool upnpEnableFlag) { upnpEnableFlag_ = upnpEnableFlag; }

private:
    bool upnpEnableFlag_ = false;
};

/// Whether a device is found by Bonjour.
class BonjourServiceParam
{
public:
    /// Whether it is.
    bool getBonjourEnableFlag() const { return bonjourEnableFlag_; }
    void setBonjourEnableFlag(bool bonjourEnableFlag) { bonjourEnableFlag_ = bonjourEnableFlag; }

private:
    bool bonjourEnableFlag_ = false;
};

/// How the device keeps its clock by a time server; second generation.
class NTPParamV2
{
public:
    /// Whether it asks a server at all.
    bool getNTPEnableFlag() const { return ntpEnableFlag_; }
    void setNTPEnableFlag(bool ntpEnableFlag) { ntpEnableFlag_ = ntpEnableFlag; }

    /// The server's address or name.
    const std::string& getNTPIp() const { return ntpIp_; }
    void setNTPIp(const std::string& ntpIp) { ntpIp_ = ntpIp; }

    /// The server's port; 123 by convention.
    std::uint16_t getNTPPort() const { return ntpPort_; }
    void setNTPPort(std::uint16_t ntpPort) { ntpPort_ = ntpPort; }

    /// Time from one query to the next, in the device's unit.
    int getNTPRunTime() const { return ntpRunTime_; }
    void setNTPRunTime(int ntpRunTime) { ntpRunTime_ = ntpRunTime; }

    /// Version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

private:
    bool ntpEnableFlag_ = false;
    std::string ntpIp_;
    std::uint16_t ntpPort_ = 0;
    int ntpRunTime_ = 0;
    int ipProtoVer_ = 0;
};

/// How a device sends mail.
class SMTPParam
{
public:
    /// Whether it sends mail at all.
    bool getSMTPEnableFlag() const { return smtpEnableFlag_; }
    void setSMTPEnableFlag(bool smtpEnableFlag) { smtpEnableFlag_ = smtpEnableFlag; }

    /// Whether it sends by its maker's server, in place of the one below.
    bool getUseDefaultSMTPServerFlag() const { return useDefaultSMTPServerFlag_; }
    void setUseDefaultSMTPServerFlag(bool useDefaultSMTPServerFlag)
    {
        useDefaultSMTPServerFlag_ = useDefaultSMTPServerFlag;
    }

    /// The server's address or name.
    const std::string& getSMTPServerAddr() const { return smtpServerAddr_; }
    void setSMTPServerAddr(const std::string& smtpServerAddr) { smtpServerAddr_ = smtpServerAddr; }

    /// The server's port.
    std::uint16_t getSMTPServerPort() const { return smtpServerPort_; }
    void setSMTPServerPort(std::uint16_t smtpServerPort) { smtpServerPort_ = smtpServerPort; }

    /// Name of the account on the server.
    const std::string& getSMTPUserName() const { return smtpUserName_; }
    void setSMTPUserName(const std::string& smtpUserName) { smtpUserName_ = smtpUserName; }

    /// Password of that account, in clear.
    const std::string& getSMTPPassword() const { return smtpPassword_; }
    void setSMTPPassword(const std::string& smtpPassword) { smtpPassword_ = smtpPassword; }

    /// The address that the mail comes from.
    const std::string& getSenderEmailAddress() const { return senderEmailAddress_; }
    void setSenderEmailAddress(const std::string& senderEmailAddress) { senderEmailAddress_ = senderEmailAddress; }

    /// The addresses that the mail goes to.
    /// @{
    const std::vector<std::string>& getRecipientEmailAddressList() const { return recipientEmailAddressList_; }
    std::vector<std::string>& getRecipientEmailAddressList() { return recipientEmailAddressList_; }
    void setRecipientEmailAddressList(std::vector<std::string>& recipientEmailAddressList)
    {
        recipientEmailAddressList_ = recipientEmailAddressList;
    }
    /// @}

    /// Language of the mail, as the device numbers it. The setter is misspelt.
    int getMailLanguage() const { return mailLanguage_; }
    void setMailLauguage(int mailLanguage) { mailLanguage_ = mailLanguage; }

    /// Quality of the attached pictures, as the device scales it.
    int getAttachmentImageQuality() const { return attachmentImageQuality_; }
    void setAttachmentImageQuality(int attachmentImageQuality) { attachmentImageQuality_ = attachmentImageQuality; }

    /// How the connection is secured, as the device numbers it.
    int getTransportMode() const { return transportMode_; }
    void setTransportMode(int transportMode) { transportMode_ = transportMode; }

private:
    bool smtpEnableFlag_ = false;
    bool useDefaultSMTPServerFlag_ = false;
    std::string smtpServerAddr_;
    std::uint16_t smtpServerPort_ = 0;
    std::string smtpUserName_;
    std::string smtpPassword_;
    std::string senderEmailAddress_;
    std::vector<std::string> recipientEmailAddressList_;
    int mailLanguage_ = 0;
    int attachmentImageQuality_ = 0;
    int transportMode_ = 0;
};

/// How a device transfers files to a server.
class FTPParam
{
public:
    /// Whether it does.
    bool getFTPEnableFlag() const { return ftpEnableFlag_; }
    void setFTPEnableFlag(bool ftpEnableFlag) { ftpEnableFlag_ = ftpEnableFlag; }

    /// The server's address or name.
    const std::string& getFTPServerAddr() const { return ftpServerAddr_; }
    void setFTPServerAddr(const std::string& ftpServerAddr) { ftpServerAddr_ = ftpServerAddr; }

    /// Name of the account on the server.
    const std::string& getFTPUserName() const { return ftpUserName_; }
    void setFTPUserName(const std::string& ftpUserName) { ftpUserName_ = ftpUserName; }

    /// Password of that account, in clear.
    const std::string& getFTPPassword() const { return ftpPassword_; }
    void setFTPPassword(const std::string& ftpPassword) { ftpPassword_ = ftpPassword; }

    /// The folder on the server.
    const std::string& getFTPServerWorkPath() const { return ftpServerWorkPath_; }
    void setFTPServerWorkPath(const std::string& ftpServerWorkPath) { ftpServerWorkPath_ = ftpServerWorkPath; }

    /// Version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

private:
    bool ftpEnableFlag_ = false;
    std::string ftpServerAddr_;
    std::string ftpUserName_;
    std::string ftpPassword_;
    std::string ftpServerWorkPath_;
    int ipProtoVer_ = 0;
};

/// How a device tells a server that it is alive.
class HeartbeatParam
{
public:
    /// Whether it does.
    bool getHeartbeatEnableFlag() const { return heartbeatEnableFlag_; }
    void setHeartbeatEnableFlag(bool heartbeatEnableFlag) { heartbeatEnableFlag_ = heartbeatEnableFlag; }

    /// The server's address.
    const std::string& getHeartbeatServerIp() const { return heartbeatServerIp_; }
    void setHeartbeatServerIp(const std::string& heartbeatServerIp) { heartbeatServerIp_ = heartbeatServerIp; }

    /// The server's port.
    std::uint16_t getHeartbeatServerPort() const { return heartbeatServerPort_; }
    void setHeartbeatServerPort(std::uint16_t heartbeatServerPort) { heartbeatServerPort_ = heartbeatServerPort; }

    /// Time from one heartbeat to the next, in the device's unit.
    int getHeartbeatInterval() const { return heartbeatInterval_; }
    void setHeartbeatInterval(int heartbeatInterval) { heartbeatInterval_ = heartbeatInterval; }

    /// How long it waits for the answer, in the device's unit.
    int getHeartbeatAckTimeout() const { return heartbeatAckTimeout_; }
    void setHeartbeatAckTimeout(int heartbeatAckTimeout) { heartbeatAckTimeout_ = heartbeatAckTimeout; }

    /// How many answers may be missing before the server counts as lost.
    int getHeartbeatTimeoutCount() const { return heartbeatTimeoutCount_; }
    void setHeartbeatTimeoutCount(int heartbeatTimeoutCount) { heartbeatTimeoutCount_ = heartbeatTimeoutCount; }

    /// Version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

private:
    bool heartbeatEnableFlag_ = false;
    std::string heartbeatServerIp_;
    std::uint16_t heartbeatServerPort_ = 0;
    int heartbeatInterval_ = 0;
    int heartbeatAckTimeout_ = 0;
    int heartbeatTimeoutCount_ = 0;
    int ipProtoVer_ = 0;
};

/// Where a device gets new software.
class UpdateParam
{
public:
    /// Whether it asks a server at all.
    bool getUpdateEnableFlag() const { return updateEnableFlag_; }
    void setUpdateEnableFlag(bool updateEnableFlag) { updateEnableFlag_ = updateEnableFlag; }

    /// The server's address.
    const std::string& getUpdateServerIP() const { return updateServerIP_; }
    void setUpdateServerIP(const std::string& updateServerIP) { updateServerIP_ = updateServerIP; }

    /// The server's port.
    std::uint16_t getUpdateServerPort() const { return updateServerPort_; }
    void setUpdateServerPort(std::uint16_t updateServerPort) { updateServerPort_ = updateServerPort; }

    /// Time from one query to the next, in the device's unit.
    int getUpdatePeriod() const { return updatePeriod_; }
    void setUpdatePeriod(int updatePeriod) { updatePeriod_ = updatePeriod; }

    /// Version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

private:
    bool updateEnableFlag_ = false;
    std::string updateServerIP_;
    std::uint16_t updateServerPort_ = 0;
    int updatePeriod_ = 0;
    int ipProtoVer_ = 0;
};

/// Where a device uploads to.
class UploadPolicy
{
public:
    /// Whether it uploads at all.
    bool getUploadEnableFlag() const { return uploadEnableFlag_; }
    void setUploadEnableFlag(bool uploadEnableFlag) { uploadEnableFlag_ = uploadEnableFlag; }

    /// The server's address.
    const std::string& getUploadServerIP() const { return uploadServerIP_; }
    void setUploadServerIP(const std::string& uploadServerIP) { uploadServerIP_ = uploadServerIP; }

    /// The server's port.
    std::uint16_t getUploadServerPort() const { return uploadServerPort_; }
    void setUploadServerPort(std::uint16_t uploadServerPort) { uploadServerPort_ = uploadServerPort; }

    /// Version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

private:
    bool uploadEnableFlag_ = false;
    std::string uploadServerIP_;
    std::uint16_t uploadServerPort_ = 0;
    int ipProtoVer_ = 0;
};

/// How a device shows time, and when it keeps daylight saving time.
class DeviceDateTime
{
public:
    /// The device's identity on the network.
    const std::string& getDeviceId() const { return deviceId_; }
    void setDeviceId(const std::string& deviceId) { deviceId_ = deviceId; }

    /// The time zone, as the device numbers it.
    int getTimeZone() const { return timeZone_; }
    void setTimeZone(int timeZone) { timeZone_ = timeZone; }

    /// How dates are shown, as the device numbers it.
    int getDataFormat() const { return dataFormat_; }
    void setDataFormat(int dataFormat) { dataFormat_ = dataFormat; }

    /// How times of day are shown, as the device numbers it.
    int getTimeFormat() const { return timeFormat_; }
    void setTimeFormat(int timeFormat) { timeFormat_ = timeFormat; }

    /// Whether daylight saving time is kept: 0 for no.
    std::uint8_t getDTSOpenFlag() const { return dtsOpenFlag_; }
    void setDTSOpenFlag(std::uint8_t dtsOpenFlag) { dtsOpenFlag_ = dtsOpenFlag; }

    /// Third of the month in which it begins.
    int getBeginXun() const { return beginXun_; }
    void setBeginXun(int beginXun) { beginXun_ = beginXun; }

    /// Month in which it begins.
    int getBeginMonth() const { return beginMonth_; }
    void setBeginMonth(int beginMonth) { beginMonth_ = beginMonth; }

    /// Week of the month in which it begins.
    int getBeginWeekly() const { return beginWeekly_; }
    void setBeginWeekly(int beginWeekly) { beginWeekly_ = beginWeekly; }

    /// Day of the week on which it begins, as the device counts it.
    int getBeginWeekDays() const { return beginWeekDays_; }
    void setBeginWeekDays(int beginWeekDays) { beginWeekDays_ = beginWeekDays; }

    /// Time of day at which it begins, as text.
    const std::string& getBeginTime() const { return beginTime_; }
    void setBeginTime(const std::string& beginTime) { beginTime_ = beginTime; }

    /// Third of the month in which it ends.
    int getEndXun() const { return endXun_; }
    void setEndXun(int endXun) { endXun_ = endXun; }

    /// Month in which it ends.
    int getEndMonth() const { return endMonth_; }
    void setEndMonth(int endMonth) { endMonth_ = endMonth; }

    /// Week of the month in which it ends.
    int getEndWeekly() const { return endWeekly_; }
    void setEndWeekly(int endWeekly) { endWeekly_ = endWeekly; }

    /// Day of the week on which it ends, as the device counts it.
    int getEndWeekDays() const { return endWeekDays_; }
    void setEndWeekDays(int endWeekDays) { endWeekDays_ = endWeekDays; }

    /// Time of day at which it ends, as text.
    const std::string& getEndTime() const { return endTime_; }
    void setEndTime(const std::string& endTime) { endTime_ = endTime; }

private:
    std::string deviceId_;
    int timeZone_ = 0;
    int dataFormat_ = 0;
    int timeFormat_ = 0;
    std::uint8_t dtsOpenFlag_ = 0;
    int beginXun_ = 0;
    int beginMonth_ = 0;
    int beginWeekly_ = 0;
    int beginWeekDays_ = 0;
    std::string beginTime_;
    int endXun_ = 0;
    int endMonth_ = 0;
    int endWeekly_ = 0;
    int endWeekDays_ = 0;
    std::string endTime_;
};

/// The time zone of a device, and when it keeps daylight saving time.
class TimeZoneParam
{
public:
    /// The time zone, as the device numbers it.
    int getTimeZone() const { return timeZone_; }
    void setTimeZone(int timeZone) { timeZone_ = timeZone; }

    /// Whether daylight saving time is kept.
    bool getDSTOpenFlag() const { return dstOpenFlag_; }
    void setDSTOpenFlag(bool dstOpenFlag) { dstOpenFlag_ = dstOpenFlag; }

    /// By how much it moves the clock, in the device's unit.
    int getDSTOffset() const { return dstOffset_; }
    void setDSTOffset(int dstOffset) { dstOffset_ = dstOffset; }

    /// Month in which it begins.
    int getBeginMonth() const { return beginMonth_; }
    void setBeginMonth(int beginMonth) { beginMonth_ = beginMonth; }

    /// Week of the month in which it begins.
    int getBeginWeekly() const { return beginWeekly_; }
    void setBeginWeekly(int beginWeekly) { beginWeekly_ = beginWeekly; }

    /// Day of the week on which it begins, as the device counts it.
    int getBeginWeekDays() const { return beginWeekDays_; }
    void setBeginWeekDays(int beginWeekDays) { beginWeekDays_ = beginWeekDays; }

    /// Time of day at which it begins, in the device's unit.
    std::uint32_t getBeginTime() const { return beginTime_; }
    void setBeginTime(std::uint32_t beginTime) { beginTime_ = beginTime; }

    /// Month in which it ends.
    int getEndMonth() const { return endMonth_; }
    void setEndMonth(int endMonth) { endMonth_ = endMonth; }

    /// Week of the month in which it ends.
    int getEndWeekly() const { return endWeekly_; }
    void setEndWeekly(int endWeekly) { endWeekly_ = endWeekly; }

    /// Day of the week on which it ends, as the device counts it.
    int getEndWeekDays() const { return endWeekDays_; }
    void setEndWeekDays(int endWeekDays) { endWeekDays_ = endWeekDays; }

    /// Time of day at which it ends, in the device's unit.
    std::uint32_t getEndTime() const { return endTime_; }
    void setEndTime(std::uint32_t endTime) { endTime_ = endTime; }

private:
    int timeZone_ = 0;
    bool dstOpenFlag_ = false;
    int dstOffset_ = 0;
    int beginMonth_ = 0;
    int beginWeekly_ = 0;
    int beginWeekDays_ = 0;
    std::uint32_t beginTime_ = 0;
    int endMonth_ = 0;
    int endWeekly_ = 0;
    int endWeekDays_ = 0;
    std::uint32_t endTime_ = 0;
};

/// The same under the name that goes with the "TimeZoneParam" document.
using TimeZoneExParam = TimeZoneParam;

/// A time at which a device restarts.
class RebootTime
{
public:
    /// Month of the year, as the device counts it.
    int getMonth() const { return month_; }
    void setMonth(int month) { month_ = month; }

    /// Day of the month, as the device counts it.
    int getDay() const { return day_; }
    void setDay(int day) { day_ = day; }

    /// Day of the week, as the device counts it.
    int getWeekday() const { return weekday_; }
    void setWeekday(int weekday) { weekday_ = weekday; }

    /// Time of day, in seconds.
    int getSecond() const { return second_; }
    void setSecond(int second) { second_ = second; }

private:
    int month_ = 0;
    int day_ = 0;
    int weekday_ = 0;
    int second_ = 0;
};

/// When a device restarts by itself.
class TimeRebootParam
{
public:
    /// Whether it does at all.
    bool getTimeRebootEnableFlag() const { return timeRebootEnableFlag_; }
    void setTimeRebootEnableFlag(bool timeRebootEnableFlag) { timeRebootEnableFlag_ = timeRebootEnableFlag; }

    /// The times.
    /// @{
    const std::vector<RebootTime>& getRebootTimeList() const { return rebootTimeList_; }
    std::vector<RebootTime>& getRebootTimeList() { return rebootTimeList_; }
    void setRebootTimeList(const std::vector<RebootTime>& rebootTimeList) { rebootTimeList_ = rebootTimeList; }
    /// @}

private:
    bool timeRebootEnableFlag_ = false;
    std::vector<RebootTime> rebootTimeList_;
};

/// How a device dials up.
class PPPoEParam
{
public:
    /// Whether the device dials up at all.
    bool getPPPoEEnableFlag() const { return pppoeEnableFlag_; }
    void setPPPoEEnableFlag(bool pppoeEnableFlag) { pppoeEnableFlag_ = pppoeEnableFlag; }

    /// The name to log on with at the provider.
    const std::string& getPPPoEUserName() const { return pppoeUserName_; }
    void setPPPoEUserName(const std::string& pppoeUserName) { pppoeUserName_ = pppoeUserName; }

    /// The password to log on with at the provider, as the caller gives it.
    const std::string& getPPPoEPassword() const { return pppoePassword_; }
    void setPPPoEPassword(const std::string& pppoePassword) { pppoePassword_ = pppoePassword; }

private:
    bool pppoeEnableFlag_ = false;
    std::string pppoeUserName_;
    std::string pppoePassword_;
};

/// How a device has its address found by a name.
class DDNSParam
{
public:
    /// Whether the device reports its address at all.
    bool getDDNSEnableFlag() const { return ddnsEnableFlag_; }
    void setDDNSEnableFlag(bool ddnsEnableFlag) { ddnsEnableFlag_ = ddnsEnableFlag; }

    /// The provider, as the device numbers it.
    int getDDNSProviderId() const { return ddnsProviderId_; }
    void setDDNSProviderId(int ddnsProviderId) { ddnsProviderId_ = ddnsProviderId; }

    /// The name to log on with at the provider.
    const std::string& getDDNSAccounts() const { return ddnsAccounts_; }
    void setDDNSAccounts(const std::string& ddnsAccounts) { ddnsAccounts_ = ddnsAccounts; }

    /// The name that the device is to be found by.
    const std::string& getDDNSDomainName() const { return ddnsDomainName_; }
    void setDDNSDomainName(const std::string& ddnsDomainName) { ddnsDomainName_ = ddnsDomainName; }

    /// The password to log on with at the provider, as the caller gives it.
    const std::string& getDDNSPassword() const { return ddnsPassword_; }
    void setDDNSPassword(const std::string& ddnsPassword) { ddnsPassword_ = ddnsPassword; }

private:
    bool ddnsEnableFlag_ = false;
    int ddnsProviderId_ = 0;
    std::string ddnsAccounts_;
    std::string ddnsDomainName_;
    std::string ddnsPassword_;
};

/// How a device has the address of one of its cards found by a name.
class DDNSParamV2
{
public:
    /// Whether the device reports its address at all.
    bool getDDNSEnableFlag() const { return ddnsEnableFlag_; }
    void setDDNSEnableFlag(bool ddnsEnableFlag) { ddnsEnableFlag_ = ddnsEnableFlag; }

    /// The provider, as the device numbers it.
    int getDDNSProviderId() const { return ddnsProviderId_; }
    void setDDNSProviderId(int ddnsProviderId) { ddnsProviderId_ = ddnsProviderId; }

    /// The name to log on with at the provider.
    const std::string& getDDNSAccounts() const { return ddnsAccounts_; }
    void setDDNSAccounts(const std::string& ddnsAccounts) { ddnsAccounts_ = ddnsAccounts; }

    /// The name that the device is to be found by.
    const std::string& getDDNSDomainName() const { return ddnsDomainName_; }
    void setDDNSDomainName(const std::string& ddnsDomainName) { ddnsDomainName_ = ddnsDomainName; }

    /// The password to log on with at the provider, as the caller gives it.
    const std::string& getDDNSPassword() const { return ddnsPassword_; }
    void setDDNSPassword(const std::string& ddnsPassword) { ddnsPassword_ = ddnsPassword; }

    /// The card whose address is reported.
    const std::string& getDDNSNetworkCardName() const { return ddnsNetworkCardName_; }
    void setDDNSNetworkCardName(const std::string& ddnsNetworkCardName) { ddnsNetworkCardName_ = ddnsNetworkCardName; }

private:
    bool ddnsEnableFlag_ = false;
    int ddnsProviderId_ = 0;
    std::string ddnsAccounts_;
    std::string ddnsDomainName_;
    std::string ddnsPassword_;
    std::string ddnsNetworkCardName_;
};

/// How a device has its address found by a name at the maker's own service.
class ZentarDDNSParam
{
public:
    /// Whether the device reports its address at all.
    bool getDDNSEnableFlag() const { return ddnsEnableFlag_; }
    void setDDNSEnableFlag(bool ddnsEnableFlag) { ddnsEnableFlag_ = ddnsEnableFlag; }

    /// The name that the device is to be found by.
    const std::string& getDDNSDomainName() const { return ddnsDomainName_; }
    void setDDNSDomainName(const std::string& ddnsDomainName) { ddnsDomainName_ = ddnsDomainName; }

    /// The card whose address is reported.
    const std::string& getDDNSNetWorkCardName() const { return ddnsNetWorkCardName_; }
    void setDDNSNetWorkCardName(const std::string& ddnsNetWorkCardName) { ddnsNetWorkCardName_ = ddnsNetWorkCardName; }

private:
    bool ddnsEnableFlag_ = false;
    std::string ddnsDomainName_;
    std::string ddnsNetWorkCardName_;
};

/// A provider of names for addresses.
class DDNSProvider
{
public:
    /// The provider, as the device numbers it.
    int getProviderId() const { return providerId_; }
    void setProviderId(int providerId) { providerId_ = providerId; }

    /// Its name.
    const std::string& getProviderName() const { return providerName_; }
    void setProviderName(const std::string& providerName) { providerName_ = providerName; }

private:
    int providerId_ = 0;
    std::string providerName_;
};

/// How addresses are reported to a provider of names.
class DDNSInfo
{
public:
    /// The provider, as the device numbers it.
    int getDDNSProviderId() const { return ddnsProviderId_; }
    void setDDNSProviderId(int ddnsProviderId) { ddnsProviderId_ = ddnsProviderId; }

    /// The host to report the address to.
    const std::string& getDDNSHostName() const { return ddnsHostName_; }
    void setDDNSHostName(const std::string& ddnsHostName) { ddnsHostName_ = ddnsHostName; }

    /// What to send there, in the words of the provider.
    const std::string& getDDNSCommand() const { return ddnsCommand_; }
    void setDDNSCommand(const std::string& ddnsCommand) { ddnsCommand_ = ddnsCommand; }

private:
    int ddnsProviderId_ = 0;
    std::string ddnsHostName_;
    std::string ddnsCommand_;
};

/// A wireless network, and how a device joins it.
class WifiParam
{
public:
    /// Whether the device uses the network at all.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// The name of the network.
    const std::string& getSSID() const { return ssid_; }
    void setSSID(const std::string& ssid) { ssid_ = ssid; }

    /// The password of the network, as the caller gives it.
    const std::string& getPassword() const { return password_; }
    void setPassword(const std::string& password) { password_ = password; }

    /// Whether the network gives the device its addresses; the following are for when it does not.
    bool getUseDynamicIPFlag() const { return useDynamicIPFlag_; }
    void setUseDynamicIPFlag(bool useDynamicIPFlag) { useDynamicIPFlag_ = useDynamicIPFlag; }

    /// Its address, as text.
    const std::string& getStaticIP() const { return staticIP_; }
    void setStaticIP(const std::string& staticIP) { staticIP_ = staticIP; }

    /// The mask of its network, as text.
    const std::string& getSubnetMask() const { return subnetMask_; }
    void setSubnetMask(const std::string& subnetMask) { subnetMask_ = subnetMask; }

    /// The way out of its network, as text.
    const std::string& getGateway() const { return gateway_; }
    void setGateway(const std::string& gateway) { gateway_ = gateway; }

    /// The server of names, as text.
    const std::string& getDNS() const { return dns_; }
    void setDNS(const std::string& dns) { dns_ = dns; }

private:
    bool enableFlag_ = false;
    std::string ssid_;
    std::string password_;
    bool useDynamicIPFlag_ = false;
    std::string staticIP_;
    std::string subnetMask_;
    std::string gateway_;
    std::string dns_;
};

/// A wireless network, and how a device joins it; the twin of WifiParam in the documents with the prefix "ZT_".
class ZT_WifiParam
{
public:
    /// Whether the device uses the network at all.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// The name of the network.
    const std::string& getSSID() const { return ssid_; }
    void setSSID(const std::string& ssid) { ssid_ = ssid; }

    /// The password of the network, as the caller gives it.
    const std::string& getPassword() const { return password_; }
    void setPassword(const std::string& password) { password_ = password; }

    /// Whether the network gives the device its addresses; the following are for when it does not.
    bool getUseDynamicIPFlag() const { return useDynamicIPFlag_; }
    void setUseDynamicIPFlag(bool useDynamicIPFlag) { useDynamicIPFlag_ = useDynamicIPFlag; }

    /// Its address, as text.
    const std::string& getStaticIP() const { return staticIP_; }
    void setStaticIP(const std::string& staticIP) { staticIP_ = staticIP; }

    /// The mask of its network, as text.
    const std::string& getSubnetMask() const { return subnetMask_; }
    void setSubnetMask(const std::string& subnetMask) { subnetMask_ = subnetMask; }

    /// The way out of its network, as text.
    const std::string& getGateway() const { return gateway_; }
    void setGateway(const std::string& gateway) { gateway_ = gateway; }

    /// The server of names, as text.
    const std::string& getDNS() const { return dns_; }
    void setDNS(const std::string& dns) { dns_ = dns; }

private:
    bool enableFlag_ = false;
    std::string ssid_;
    std::string password_;
    bool useDynamicIPFlag_ = false;
    std::string staticIP_;
    std::string subnetMask_;
    std::string gateway_;
    std::string dns_;
};

/// A wireless network in reach of a device.
class WifiHotspotParam
{
public:
    /// The name of the network.
    const std::string& getSSID() const { return ssid_; }
    void setSSID(const std::string& ssid) { ssid_ = ssid; }

    /// How it is encrypted, in the words of the wireless driver.
    const std::string& getEncryptionType() const { return encryptionType_; }
    void setEncryptionType(const std::string& encryptionType) { encryptionType_ = encryptionType; }

    /// How well it is received, as the wireless driver scales it.
    int getSignalQuality() const { return signalQuality_; }
    void setSignalQuality(int signalQuality) { signalQuality_ = signalQuality; }

private:
    std::string ssid_;
    std::string encryptionType_;
    int signalQuality_ = 0;
};

/// The addresses that a device has on its wireless network.
class WifiNetworkParam
{
public:
    /// Its address, as text.
    const std::string& getIP() const { return ip_; }
    void setIP(const std::string& ip) { ip_ = ip; }

    /// The mask of its network, as text.
    const std::string& getSubnetMask() const { return subnetMask_; }
    void setSubnetMask(const std::string& subnetMask) { subnetMask_ = subnetMask; }

    /// The way out of its network, as text.
    const std::string& getGateway() const { return gateway_; }
    void setGateway(const std::string& gateway) { gateway_ = gateway; }

    /// The server of names that it asks first, as text.
    const std::string& getPrimaryDNS() const { return primaryDNS_; }
    void setPrimaryDNS(const std::string& primaryDNS) { primaryDNS_ = primaryDNS; }

    /// The server of names that it asks otherwise, as text.
    const std::string& getSpareDNS() const { return spareDNS_; }
    void setSpareDNS(const std::string& spareDNS) { spareDNS_ = spareDNS; }

private:
    std::string ip_;
    std::string subnetMask_;
    std::string gateway_;
    std::string primaryDNS_;
    std::string spareDNS_;
};

/// How a device stands with its wireless network.
class WifiStateParam
{
public:
    /// How far the connection has come, as the wireless driver numbers it.
    int getConnectState() const { return connectState_; }
    void setConnectState(int connectState) { connectState_ = connectState; }

    /// How well the network is received, as the wireless driver scales it.
    int getSignalQuality() const { return signalQuality_; }
    void setSignalQuality(int signalQuality) { signalQuality_ = signalQuality; }

private:
    int connectState_ = 0;
    int signalQuality_ = 0;
};

/// The addresses that a device has on its mobile network.
class I3GNetworkParam
{
public:
    /// Its address, as text.
    const std::string& getIP() const { return ip_; }
    void setIP(const std::string& ip) { ip_ = ip; }

    /// The mask of its network, as text.
    const std::string& getSubnetMask() const { return subnetMask_; }
    void setSubnetMask(const std::string& subnetMask) { subnetMask_ = subnetMask; }

    /// The way out of its network, as text.
    const std::string& getGateway() const { return gateway_; }
    void setGateway(const std::string& gateway) { gateway_ = gateway; }

    /// The server of names that it asks first, as text.
    const std::string& getPrimaryDNS() const { return primaryDNS_; }
    void setPrimaryDNS(const std::string& primaryDNS) { primaryDNS_ = primaryDNS; }

    /// The server of names that it asks otherwise, as text.
    const std::string& getSpareDNS() const { return spareDNS_; }
    void setSpareDNS(const std::string& spareDNS) { spareDNS_ = spareDNS; }

private:
    std::string ip_;
    std::string subnetMask_;
    std::string gateway_;
    std::string primaryDNS_;
    std::string spareDNS_;
};

/// How a device stands with its mobile network.
class I3GStateParam
{
public:
    /// How far the connection has come, as the modem numbers it.
    int getConnectState() const { return connectState_; }
    void setConnectState(int connectState) { connectState_ = connectState; }

    /// Who runs the network.
    const std::string& getOperator() const { return operatorName_; }
    void setOperator(const std::string& operatorName) { operatorName_ = operatorName; }

    /// The kind of network, in the words of the modem.
    const std::string& getNetType() const { return netType_; }
    void setNetType(const std::string& netType) { netType_ = netType; }

    /// How well the network is received, as the modem scales it.
    int getSignalQuality() const { return signalQuality_; }
    void setSignalQuality(int signalQuality) { signalQuality_ = signalQuality; }

    /// The state of the card, as the modem numbers it.
    int getSIMState() const { return simState_; }
    void setSIMState(int simState) { simState_ = simState; }

private:
    int connectState_ = 0;
    std::string operatorName_;
    std::string netType_;
    int signalQuality_ = 0;
    int simState_ = 0;
};

/// Which text messages connect a device to its mobile network, and disconnect it.
class I3GMessageConnectPolicyParam
{
public:
    /// Whether messages are heeded at all.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// The number whose message connects.
    const std::string& getConnectMessagePhoneNO() const { return connectMessagePhoneNO_; }
    void setConnectMessagePhoneNO(const std::string& connectMessagePhoneNO)
    {
        connectMessagePhoneNO_ = connectMessagePhoneNO;
    }

    /// What that message says.
    const std::string& getConnectMessageContent() const { return connectMessageContent_; }
    void setConnectMessageContent(const std::string& connectMessageContent)
    {
        connectMessageContent_ = connectMessageContent;
    }

    /// The number whose message disconnects.
    const std::string& getDisconnectMessagePhoneNO() const { return disconnectMessagePhoneNO_; }
    void setDisconnectMessagePhoneNO(const std::string& disconnectMessagePhoneNO)
    {
        disconnectMessagePhoneNO_ = disconnectMessagePhoneNO;
    }

    /// What that message says.
    const std::string& getDisconnectMessageContent() const { return disconnectMessageContent_; }
    void setDisconnectMessageContent(const std::string& disconnectMessageContent)
    {
        disconnectMessageContent_ = disconnectMessageContent;
    }

private:
    bool enableFlag_ = false;
    std::string connectMessagePhoneNO_;
    std::string connectMessageContent_;
    std::string disconnectMessagePhoneNO_;
    std::string disconnectMessageContent_;
};

/// When a device is connected to its mobile network.
class I3GTimeConnectPolicyParam
{
public:
    /// Whether the schedule is heeded at all.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// How the connection is kept, as the modem numbers it.
    int getOnlineMode() const { return onlineMode_; }
    void setOnlineMode(int onlineMode) { onlineMode_ = onlineMode; }

    /// When the device is connected.
    /// @{
    const ScheduleTimeParam& getScheduleTimeParam() const { return scheduleTimeParam_; }
    ScheduleTimeParam& getScheduleTimeParam() { return scheduleTimeParam_; }
    void setScheduleTimeParam(const ScheduleTimeParam& scheduleTimeParam) { scheduleTimeParam_ = scheduleTimeParam; }
    /// @}

private:
    bool enableFlag_ = false;
    int onlineMode_ = 0;
    ScheduleTimeParam scheduleTimeParam_;
};

/// When a device connects to its mobile network.
class I3GPolicyParam
{
public:
    /// Whether the device uses the mobile network at all.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(bool enableFlag) { enableFlag_ = enableFlag; }

    /// The text messages that connect the device.
    /// @{
    const I3GMessageConnectPolicyParam& get3GMessageConnectPolicyParam() const { return messageConnectPolicyParam_; }
    I3GMessageConnectPolicyParam& get3GMessageConnectPolicyParam() { return messageConnectPolicyParam_; }
    void set3GMessageConnectPolicyParam(const I3GMessageConnectPolicyParam& messageConnectPolicyParam)
    {
        messageConnectPolicyParam_ = messageConnectPolicyParam;
    }
    /// @}

    /// The times at which it is connected.
    /// @{
    const I3GTimeConnectPolicyParam& get3GTimeConnectPolicyParam() const { return timeConnectPolicyParam_; }
    I3GTimeConnectPolicyParam& get3GTimeConnectPolicyParam() { return timeConnectPolicyParam_; }
    void set3GTimeConnectPolicyParam(const I3GTimeConnectPolicyParam& timeConnectPolicyParam)
    {
        timeConnectPolicyParam_ = timeConnectPolicyParam;
    }
    /// @}

private:
    bool enableFlag_ = false;
    I3GMessageConnectPolicyParam messageConnectPolicyParam_;
    I3GTimeConnectPolicyParam timeConnectPolicyParam_;
};

/// The four servers that a device registers with.
class CMSRegisterServerParam
{
public:
    /// Address of the first server, as text.
    const std::string& getRegisterSrvIP1() const { return registerSrvIP1_; }
    void setRegisterSrvIP1(const std::string& registerSrvIP1) { registerSrvIP1_ = registerSrvIP1; }

    /// Its port.
    int getRegisterSrvPort1() const { return registerSrvPort1_; }
    void setRegisterSrvPort1(int registerSrvPort1) { registerSrvPort1_ = registerSrvPort1; }

    /// Address of the second server, as text.
    const std::string& getRegisterSrvIP2() const { return registerSrvIP2_; }
    void setRegisterSrvIP2(const std::string& registerSrvIP2) { registerSrvIP2_ = registerSrvIP2; }

    /// Its port.
    int getRegisterSrvPort2() const { return registerSrvPort2_; }
    void setRegisterSrvPort2(int registerSrvPort2) { registerSrvPort2_ = registerSrvPort2; }

    /// Address of the third server, as text.
    const std::string& getRegisterSrvIP3() const { return registerSrvIP3_; }
    void setRegisterSrvIP3(const std::string& registerSrvIP3) { registerSrvIP3_ = registerSrvIP3; }

    /// Its port.
    int getRegisterSrvPort3() const { return registerSrvPort3_; }
    void setRegisterSrvPort3(int registerSrvPort3) { registerSrvPort3_ = registerSrvPort3; }

    /// Address of the fourth server, as text.
    const std::string& getRegisterSrvIP4() const { return registerSrvIP4_; }
    void setRegisterSrvIP4(const std::string& registerSrvIP4) { registerSrvIP4_ = registerSrvIP4; }

    /// Its port.
    int getRegisterSrvPort4() const { return registerSrvPort4_; }
    void setRegisterSrvPort4(int registerSrvPort4) { registerSrvPort4_ = registerSrvPort4; }

private:
    std::string registerSrvIP1_;
    int registerSrvPort1_ = 0;
    std::string registerSrvIP2_;
    int registerSrvPort2_ = 0;
    std::string registerSrvIP3_;
    int registerSrvPort3_ = 0;
    std::string registerSrvIP4_;
    int registerSrvPort4_ = 0;
};

/// Three values of free meaning for the server that a device registers with.
class CMSExternConfigParam
{
public:
    /// The first value; what it stands for is between the device and its server.
    const std::string& getExternConfig1() const { return externConfig1_; }
    void setExternConfig1(const std::string& externConfig1) { externConfig1_ = externConfig1; }

    /// The second value.
    const std::string& getExternConfig2() const { return externConfig2_; }
    void setExternConfig2(const std::string& externConfig2) { externConfig2_ = externConfig2; }

    /// The third value.
    const std::string& getExternConfig3() const { return externConfig3_; }
    void setExternConfig3(const std::string& externConfig3) { externConfig3_ = externConfig3; }

private:
    std::string externConfig1_;
    std::string externConfig2_;
    std::string externConfig3_;
};

/// Under which identity a device registers.
class CMSDeviceRegisterInfoParam
{
public:
    /// The identity that the device registers under.
    const std::string& getDeviceRegisterID() const { return deviceRegisterID_; }
    void setDeviceRegisterID(const std::string& deviceRegisterID) { deviceRegisterID_ = deviceRegisterID; }

private:
    std::string deviceRegisterID_;
};

/// Under which identity a camera registers.
class CMSCameraRegisterInfoParam
{
public:
    /// The camera's number on the device.
    int getCameraID() const { return cameraID_; }
    void setCameraID(int cameraID) { cameraID_ = cameraID; }

    /// The identity that the camera registers under.
    const std::string& getCameraRegisterID() const { return cameraRegisterID_; }
    void setCameraRegisterID(const std::string& cameraRegisterID) { cameraRegisterID_ = cameraRegisterID; }

private:
    int cameraID_ = 0;
    std::string cameraRegisterID_;
};

/// How a device registers with a central server: where, and under which identities.
class CMSRegisterParam
{
public:
    /// The identity of the device.
    /// @{
    const CMSDeviceRegisterInfoParam& getCMSDeviceRegisterInfoParam() const { return cmsDeviceRegisterInfoParam_; }
    CMSDeviceRegisterInfoParam& getCMSDeviceRegisterInfoParam() { return cmsDeviceRegisterInfoParam_; }
    void setCMSDeviceRegisterInfoParam(const CMSDeviceRegisterInfoParam& cmsDeviceRegisterInfoParam)
    {
        cmsDeviceRegisterInfoParam_ = cmsDeviceRegisterInfoParam;
    }
    /// @}

    /// Values of free meaning.
    /// @{
    const CMSExternConfigParam& getCMSExternConfigParam() const { return cmsExternConfigParam_; }
    CMSExternConfigParam& getCMSExternConfigParam() { return cmsExternConfigParam_; }
    void setCMSExternConfigParam(const CMSExternConfigParam& cmsExternConfigParam)
    {
        cmsExternConfigParam_ = cmsExternConfigParam;
    }
    /// @}

    /// The servers.
    /// @{
    const CMSRegisterServerParam& getCMSRegisterServerParam() const { return cmsRegisterServerParam_; }
    CMSRegisterServerParam& getCMSRegisterServerParam() { return cmsRegisterServerParam_; }
    void setCMSRegisterServerParam(const CMSRegisterServerParam& cmsRegisterServerParam)
    {
        cmsRegisterServerParam_ = cmsRegisterServerParam;
    }
    /// @}

    /// The identities of the cameras.
    /// @{
    const std::vector<CMSCameraRegisterInfoParam>& getCMSCameraRegisterInfoParamList() const
    {
        return cmsCameraRegisterInfoParamList_;
    }
    std::vector<CMSCameraRegisterInfoParam>& getCMSCameraRegisterInfoParamList()
    {
        return cmsCameraRegisterInfoParamList_;
    }
    void
    setCMSCameraRegisterInfoParamList(const std::vector<CMSCameraRegisterInfoParam>& cmsCameraRegisterInfoParamList)
    {
        cmsCameraRegisterInfoParamList_ = cmsCameraRegisterInfoParamList;
    }
    /// @}

private:
    CMSDeviceRegisterInfoParam cmsDeviceRegisterInfoParam_;
    CMSExternConfigParam cmsExternConfigParam_;
    CMSRegisterServerParam cmsRegisterServerParam_;
    std::vector<CMSCameraRegisterInfoParam> cmsCameraRegisterInfoParamList_;
};

/// One of the servers that a device registers with.
class CMSRegisterServerParamV2
{
public:
    /// The server's name.
    const std::string& getRegisterSrvName() const { return registerSrvName_; }
    void setRegisterSrvName(const std::string& registerSrvName) { registerSrvName_ = registerSrvName; }

    /// Its address, as text.
    const std::string& getRegisterSrvIP() const { return registerSrvIP_; }
    void setRegisterSrvIP(const std::string& registerSrvIP) { registerSrvIP_ = registerSrvIP; }

    /// Its port.
    int getRegisterSrvPort() const { return registerSrvPort_; }
    void setRegisterSrvPort(int registerSrvPort) { registerSrvPort_ = registerSrvPort; }

private:
    std::string registerSrvName_;
    std::string registerSrvIP_;
    int registerSrvPort_ = 0;
};

/// A value of free meaning, under its name, for the server that a device registers with.
class CMSExternConfigParamV2
{
public:
    /// The value's name.
    const std::string& getExternConfigName() const { return externConfigName_; }
    void setExternConfigName(const std::string& externConfigName) { externConfigName_ = externConfigName; }

    /// The value; what it stands for is between the device and its server.
    const std::string& getExternConfigValue() const { return externConfigValue_; }
    void setExternConfigValue(const std::string& externConfigValue) { externConfigValue_ = externConfigValue; }

private:
    std::string externConfigName_;
    std::string externConfigValue_;
};

/// How a device registers with central servers: with which, by which protocol, and under which identities. To its
/// setters a null text is an empty one.
class CMSRegisterInfoParam
{
public:
    /// The name of the protocol.
    const std::string& getProtocolName() const { return protocolName_; }
    void setProtocolName(const char* protocolName) { protocolName_ = protocolName != nullptr ? protocolName : ""; }

    /// Its version.
    const std::string& getProtocolVersion() const { return protocolVersion_; }
    void setProtocolVersion(const char* protocolVersion)
    {
        protocolVersion_ = protocolVersion != nullptr ? protocolVersion : "";
    }

    /// How far the registration has come, in the words of the device.
    const std::string& getDeviceProtocolState() const { return deviceProtocolState_; }
    void setDeviceProtocolState(const char* deviceProtocolState)
    {
        deviceProtocolState_ = deviceProtocolState != nullptr ? deviceProtocolState : "";
    }

    /// The servers.
    /// @{
    const std::vector<CMSRegisterServerParamV2>& getCMSRegisterServerParam() const { return cmsRegisterServerParam_; }
    std::vector<CMSRegisterServerParamV2>& getCMSRegisterServerParam() { return cmsRegisterServerParam_; }
    void setCMSRegisterServerParam(const std::vector<CMSRegisterServerParamV2>& cmsRegisterServerParam)
    {
        cmsRegisterServerParam_ = cmsRegisterServerParam;
    }
    /// @}

    /// The identities of the devices.
    /// @{
    const std::vector<CMSDeviceRegisterInfoParam>& getCMSDeviceRegisterInfoParam() const
    {
        return cmsDeviceRegisterInfoParam_;
    }
    std::vector<CMSDeviceRegisterInfoParam>& getCMSDeviceRegisterInfoParam() { return cmsDeviceRegisterInfoParam_; }
    void setCMSDeviceRegisterInfoParam(const std::vector<CMSDeviceRegisterInfoParam>& cmsDeviceRegisterInfoParam)
    {
        cmsDeviceRegisterInfoParam_ = cmsDeviceRegisterInfoParam;
    }
    /// @}

    /// The identities of the cameras.
    /// @{
    const std::vector<CMSCameraRegisterInfoParam>& getCMSCameraRegisterInfoParam() const
    {
        return cmsCameraRegisterInfoParam_;
    }
    std::vector<CMSCameraRegisterInfoParam>& getCMSCameraRegisterInfoParam() { return cmsCameraRegisterInfoParam_; }
    void setCMSCameraRegisterInfoParam(const std::vector<CMSCameraRegisterInfoParam>& cmsCameraRegisterInfoParam)
    {
        cmsCameraRegisterInfoParam_ = cmsCameraRegisterInfoParam;
    }
    /// @}

    /// Values of free meaning.
    /// @{
    const std::vector<CMSExternConfigParamV2>& getCMSExternConfigParam() const { return cmsExternConfigParam_; }
    std::vector<CMSExternConfigParamV2>& getCMSExternConfigParam() { return cmsExternConfigParam_; }
    void setCMSExternConfigParam(const std::vector<CMSExternConfigParamV2>& cmsExternConfigParam)
    {
        cmsExternConfigParam_ = cmsExternConfigParam;
    }
    /// @}

private:
    std::string protocolName_;
    std::string protocolVersion_;
    std::string deviceProtocolState_;
    std::vector<CMSRegisterServerParamV2> cmsRegisterServerParam_;
    std::vector<CMSDeviceRegisterInfoParam> cmsDeviceRegisterInfoParam_;
    std::vector<CMSCameraRegisterInfoParam> cmsCameraRegisterInfoParam_;
    std::vector<CMSExternConfigParamV2> cmsExternConfigParam_;
};

/// One protocol that a device speaks with its server.
class ProtocolConfigParamItem
{
public:
    /// The name of the protocol.
    const std::string& getProtocolName() const { return protocolName_; }
    void setProtocolName(const std::string& protocolName) { protocolName_ = protocolName; }

    /// Its version.
    const std::string& getProtocolVersion() const { return protocolVersion_; }
    void setProtocolVersion(const std::string& protocolVersion) { protocolVersion_ = protocolVersion; }

    /// Whether the device speaks it at present.
    bool getEnableFlag() const { return enableFlag_; }
    void setEnableFlag(const bool& enableFlag) { enableFlag_ = enableFlag; }

private:
    std::string protocolName_;
    std::string protocolVersion_;
    bool enableFlag_ = false;
};

/// The protocols that a device speaks with its server.
class ProtocolConfigParam
{
public:
    /// The protocols, in order.
    const std::vector<ProtocolConfigParamItem>& getProtocolConfigParam() const { return items_; }
    /// Appends a protocol.
    void setProtocolConfigParam(const ProtocolConfigParamItem& item) { items_.push_back(item); }

private:
    std::vector<ProtocolConfigParamItem> items_;
};

/// Which protocol a device speaks with its server.
class CMSProtocolParam
{
public:
    /// The name of the protocol.
    const std::string& getProtocolName() const { return protocolName_; }
    void setProtocolName(const std::string& protocolName) { protocolName_ = protocolName; }

    /// Its version.
    const std::string& getProtocolVersion() const { return protocolVersion_; }
    void setProtocolVersion(const std::string& protocolVersion) { protocolVersion_ = protocolVersion; }

    /// The version of the device's software for it.
    const std::string& getProtocolSoftwareVersion() const { return protocolSoftwareVersion_; }
    void setProtocolSoftwareVersion(const std::string& protocolSoftwareVersion)
    {
        protocolSoftwareVersion_ = protocolSoftwareVersion;
    }

private:
    std::string protocolName_;
    std::string protocolVersion_;
    std::string protocolSoftwareVersion_;
};

/// A kind of protocol that a device can speak.
class ProtocolTypeInfo
{
public:
    /// The name of the protocol.
    const std::string& getProtocolName() const { return protocolName_; }
    void setProtocolName(const std::string& protocolName) { protocolName_ = protocolName; }

    /// Its identity.
    const std::string& getProtocolId() const { return protocolId_; }
    void setProtocolId(const std::string& protocolId) { protocolId_ = protocolId; }

    /// What kind it is, as the device numbers it.
    int getProtocolConfigType() const { return protocolConfigType_; }
    void setProtocolConfigType(int protocolConfigType) { protocolConfigType_ = protocolConfigType; }

    /// Whether the device speaks it at present.
    bool getProtocolEnable() const { return protocolEnable_; }
    void setProtocolEnableFlag(bool protocolEnable) { protocolEnable_ = protocolEnable; }

private:
    std::string protocolName_;
    std::string protocolId_;
    int protocolConfigType_ = 0;
    bool protocolEnable_ = false;
};

/// How a device verifies the users of a protocol.
class ProtocolSecurityParam
{
public:
    /// Whether users are verified at all.
    bool getUserVerificationFlag() const { return userVerificationFlag_; }
    void setUserVerificationFlag(bool userVerificationFlag) { userVerificationFlag_ = userVerificationFlag; }

    /// How users are verified, as the device numbers it.
    int getSecurityVerificationType() const { return securityVerificationType_; }
    void setSecurityVerificationType(int securityVerificationType)
    {
        securityVerificationType_ = securityVerificationType;
    }

private:
    bool userVerificationFlag_ = false;
    int securityVerificationType_ = 0;
};

/// The server that a device registers with.
class RegisterParam
{
public:
    /// Whether the device registers at all.
    bool getRegisterEnableFlag() const { return registerEnableFlag_; }
    void setRegisterEnableFlag(bool registerEnableFlag) { registerEnableFlag_ = registerEnableFlag; }

    /// The server's address, as text.
    const std::string& getRegisterServerIP() const { return registerServerIP_; }
    void setRegisterServerIP(const std::string& registerServerIP) { registerServerIP_ = registerServerIP; }

    /// The server's port.
    std::uint16_t getRegisterServerPort() const { return registerServerPort_; }
    void setRegisterServerPort(std::uint16_t registerServerPort) { registerServerPort_ = registerServerPort; }

    /// Version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

private:
    bool registerEnableFlag_ = false;
    std::string registerServerIP_;
    std::uint16_t registerServerPort_ = 0;
    int ipProtoVer_ = 0;
};
