#pragma once

/// @file
/// The records of pan-tilt-zoom heads and serial ports.
///
/// Records are values: copyable, and 0, empty or false in every field when new. They are not locked.

#include <string>

/// A protocol by which heads are driven.
class PTZProtocol
{
public:
    /// The protocol's number on the device.
    int getProtocolId() const { return protocolId_; }
    void setProtocolId(int protocolId) { protocolId_ = protocolId; }

    /// Its name, for users.
    const std::string& getProtocolName() const { return protocolName_; }
    void setProtocolName(const std::string& protocolName) { protocolName_ = protocolName; }

private:
    int protocolId_ = 0;
    std::string protocolName_;
};
