#pragma once

#include "core/IDomainXml.h"
#include "domain/SnapshotRecords.h"

#include <string>

/// Asks for one stored picture: the "SnapshotDownParam" document.
///
/// All or nothing: the reader gives false, with the record as it was, if any property is missing. What is there and is
/// no number counts as 0. The alarm is replaced, name and all; the document does not carry its name.
class SnapshotDownParamXml : public IDomainXml
{
public:
    SnapshotDownParamXml();
    ~SnapshotDownParamXml() override;

    bool createXmlString(const SnapshotDownParam& param, std::string& text) const;
    bool parseXmlString(const std::string& text, SnapshotDownParam& param) const;

    /// @name Times as text
    /// The text forms of the document's times. Both are always true.
    /// @{
    bool Int642Str(const long long& value, std::string& text) const;
    /// By way of a `double`: a fraction is cut off, and of more than 53 significant bits the lowest are lost. What is
    /// no number gives 0.
    bool str2Int64(const std::string& text, long long& value) const;
    /// @}
};
