#pragma once

#include "core/IDomainXml.h"
#include "domain/DisplayRecords.h"

#include <string>
#include <vector>

/// A monitor of a recorder: the "MonitorParam" document, and "MonitorParamList" for several.
///
/// A missing property leaves its field. Lists are appended to.
class MonitorParamXml : public IDomainXml
{
public:
    MonitorParamXml();
    ~MonitorParamXml() override;

    bool createXmlString(const MonitorParam& monitor, std::string& text) const;
    bool createXmlString(const std::vector<MonitorParam>& monitors, std::string& text) const;
    bool parseXmlString(const std::string& text, MonitorParam& monitor) const;
    bool parseXmlString(const std::string& text, std::vector<MonitorParam>& monitors) const;
};
