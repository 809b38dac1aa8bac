#pragma once

#include "domain/RecordRecords.h"

#include <tinyxml.h>
#include <vector>

/// A kind of alarm inside other documents: the "AlarmExType" element, and "AlarmExTypeList" for several.
///
/// It is a child only. A missing attribute leaves its field.
class AlarmExTypeXml
{
public:
    static TiXmlElement& writeElement(TiXmlNode& parent, const AlarmExType& type);
    static bool readElement(const TiXmlElement& element, AlarmExType& type);

    /// Appends the list's element to @p parent, also if it has no item.
    static TiXmlElement& writeList(TiXmlNode& parent, const std::vector<AlarmExType>& types);
    /// The items of @p list: its first "AlarmExType", and every element behind that.
    static std::vector<AlarmExType> readList(const TiXmlElement& list);
};
