#pragma once

#include "core/IDomainXml.h"
#include "domain/RecordRecords.h"

#include <string>

/// What a camera has stored, in sum: the "RecordSummaryInfo" document.
///
/// What a text lacks resets its field, the calendar times as a whole.
class RecordSummaryInfoXml : public IDomainXml
{
public:
    RecordSummaryInfoXml();
    ~RecordSummaryInfoXml() override;

    bool createXmlString(const RecordSummaryInfo& info, std::string& text) const;
    bool parseXmlString(const std::string& text, RecordSummaryInfo& info) const;
};
