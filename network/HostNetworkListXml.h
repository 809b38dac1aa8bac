#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <vector>

/// The network cards of a device: the "HostNetWorkList" document, whose items are "HostNetWork".
///
/// The reader replaces the list, and takes only items of that name. A missing attribute leaves 0, empty or false in its
/// item.
class HostNetworkListXml : public IDomainXml
{
public:
    HostNetworkListXml();
    ~HostNetworkListXml() override;

    /// @name Document form
    /// See IDomainXml. There is no document that grows: each text is written and read on its own.
    /// @{
    void setHostNetworkList(const std::vector<HostNetwork>& networks) { networks_ = networks; }
    const std::vector<HostNetwork>& getHostNetworkList() const { return networks_; }
    bool createXmlString();
    /// False, with the list as it was, for a text that is malformed or has another root.
    bool parseXmlString();
    void setXmlString(const std::string& text) { text_ = text; }
    std::string& getXmlString() { return text_; }
    /// @}

private:
    std::vector<HostNetwork> networks_;
    std::string text_;
};
