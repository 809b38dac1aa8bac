#pragma once

#include <string>

/// A network endpoint: address, port and version of the protocol. A value; the address is kept as text and not checked.
class InetAddr
{
public:
    /// The address as text; empty in a new endpoint.
    const char* getIP() const { return ip_.c_str(); }
    /// Null is an empty address.
    void setIP(const char* ip) { ip_ = ip != nullptr ? ip : ""; }

    unsigned short getPORT() const { return port_; }
    void setPORT(unsigned short port) { port_ = port; }

    /// The version of the Internet protocol, as the device numbers it.
    int getIPProtoVer() const { return ipProtoVer_; }
    void setIPProtoVer(int ipProtoVer) { ipProtoVer_ = ipProtoVer; }

private:
    std::string ip_;
    unsigned short port_ = 0;
    int ipProtoVer_ = 0;
};
