#pragma once

/// @file
/// The records of the network and its services.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include <cstdint>
#include <string>

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
