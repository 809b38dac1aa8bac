#pragma once

#include "core/IDomainXml.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <vector>

/// The providers of names that a device knows: the "DDNSProviderList" document, and "DDNSProvider" for one.
///
/// A missing property resets its field; lists are appended to. DDNSProviderXml has the same roots and other attributes:
/// neither reads what the other writes, but finds defaults in it.
class DDNSProviderListXml : public IDomainXml
{
public:
    DDNSProviderListXml();
    ~DDNSProviderListXml() override;

    bool createXmlString(const DDNSProvider& provider, std::string& text) const;
    bool createXmlString(const std::vector<DDNSProvider>& providers, std::string& text) const;
    bool parseXmlString(const std::string& text, DDNSProvider& provider) const;
    bool parseXmlString(const std::string& text, std::vector<DDNSProvider>& providers) const;
};
