#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>
#include <tinyxml.h>
#include <vector>

/// The times at which a device restarts: the "RebootTimeList" document.
///
/// A missing attribute gives 0.
class RebootTimeXml : public IDomainXml
{
public:
    RebootTimeXml();
    ~RebootTimeXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to; items may have any name.
    /// @{
    bool createDomainXmlNode(const std::vector<RebootTime>& times, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<RebootTime>& times) const;
    bool createXmlString(const std::vector<RebootTime>& times, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<RebootTime>& times) const;
    /// @}

    /// Reads one time.
    static bool readElement(const TiXmlElement& element, RebootTime& time);
};
