#pragma once

#include "domain/CoreRecords.h"

#include <string>
#include <tinyxml.h>

/// A line that objects may cross: the "LineCross" document.
///
/// A missing property leaves its field.
class LineCrossXml
{
public:
    LineCrossXml();
    virtual ~LineCrossXml();

    bool createXmlString(const LineCross& line, std::string& text) const;
    bool parseXmlString(const std::string& text, LineCross& line) const;

    /// @name Elements
    /// For the documents that hold a line.
    /// @{
    static TiXmlElement& writeElement(TiXmlNode& parent, const LineCross& line);
    static bool readElement(const TiXmlElement& element, LineCross& line);
    /// @}
};
