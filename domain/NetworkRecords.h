#pragma once

/// @file
/// The records of the network and its services.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

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

/// The time zone of a device, and when it keeps daylight saving time, as the document of that name carries it.
class TimeZoneExParam
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
