#pragma once

#include "core/IDomainXml.h"
#include "domain/AlarmRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <vector>

/// Kinds of alarm: the "AlarmEventList" document.
///
/// A missing property resets its field, in silence.
class AlarmEventXml : public IDomainXml
{
public:
    AlarmEventXml();
    ~AlarmEventXml() override;

    /// @name Node form
    /// See IDomainXml. Lists are appended to.
    /// @{
    bool createDomainXmlNode(const std::vector<AlarmEvent>& events, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<AlarmEvent>& events) const;
    bool createXmlString(const std::vector<AlarmEvent>& events, std::string& text) const;
    bool parseXmlString(const std::string& text, std::vector<AlarmEvent>& events) const;
    /// @}
};
