#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <vector>

/// The network cards of a device: the "NetworkParamList" document.
///
/// The reader appends to the list, and takes only items named "NetworkParam". A missing attribute leaves 0, empty or
/// false in its item.
class NetworkParamListXml : public IDomainXml
{
public:
    NetworkParamListXml();
    ~NetworkParamListXml() override;

    bool createXmlString(const std::vector<NetworkParam>& params, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<NetworkParam>& params) const;
};
