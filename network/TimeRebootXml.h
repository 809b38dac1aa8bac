#pragma once

#include "domain/NetworkRecords.h"

#include <string>

/// When a device restarts by itself: the "TimeRebootParam" document. TimeRebootParamXml carries the same in another
/// shape; neither reads the other's text.
///
/// A missing attribute resets its field. The reader replaces the times, and takes only items named "RebootTime".
class TimeRebootXml
{
public:
    bool createXmlString(const TimeRebootParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, TimeRebootParam& param) const;
};
