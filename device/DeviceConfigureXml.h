#pragma once

#include <string>

/// Which setting a document is about: the "DeviceConfigure" document.
///
/// A missing attribute resets its number; without "CommandID" the reader gives false and leaves both.
class DeviceConfigureXml
{
public:
    DeviceConfigureXml();
    virtual ~DeviceConfigureXml();

    /// The group of settings, as the device numbers it.
    int getPrimaryCommandID() const { return primaryCommandID_; }
    void setPrimaryCommandID(const int& primaryCommandID) { primaryCommandID_ = primaryCommandID; }

    /// The setting within its group.
    int getSubCommandID() const { return subCommandID_; }
    void setSubCommandID(const int& subCommandID) { subCommandID_ = subCommandID; }

    bool createXmlString(std::string& text) const;
    bool parseXmlString(const std::string& text);

private:
    int primaryCommandID_ = 0;
    int subCommandID_ = 0;
};
