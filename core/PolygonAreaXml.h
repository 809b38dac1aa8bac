#pragma once

#include "domain/CoreRecords.h"

#include <string>
#include <tinyxml.h>

/// An area by the points of its outline: the "PolygonArealist" document.
///
/// The reader takes every child for a point, whatever its name, and adds it to those that the area has. A point without
/// one of its coordinates has 0 there.
class PolygonAreaXml
{
public:
    bool createXmlString(const PolygonArea& area, std::string& text) const;
    bool parseXmlString(const std::string& text, PolygonArea& area) const;

    /// @name Elements
    /// For the documents that hold an area.
    /// @{
    static TiXmlElement& writeElement(TiXmlNode& parent, const PolygonArea& area);
    static bool readElement(const TiXmlElement& element, PolygonArea& area);
    /// @}
};
