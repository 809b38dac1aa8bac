#pragma once

#include "core/IDomainXml.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <string>

/// When a device restarts by itself: the "EnableTimeReboot" document. TimeRebootXml carries the same in another shape;
/// neither reads the other's text.
///
/// A missing attribute resets its field, and a missing "RebootTimeList" empties the times.
class TimeRebootParamXml : public IDomainXml
{
public:
    TimeRebootParamXml();
    ~TimeRebootParamXml() override;

    /// @name Node form
    /// See IDomainXml.
    /// @{
    bool createDomainXmlNode(const TimeRebootParam& param, SafePointer<DomainXmlNode>& node) const;
    bool parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, TimeRebootParam& param) const;
    bool createXmlString(const TimeRebootParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, TimeRebootParam& param) const;
    /// @}
};
