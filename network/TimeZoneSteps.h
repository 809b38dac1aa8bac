#pragma once

#include "core/SafePointer.h"
#include "domain/DomainXmlNode.h"
#include "domain/NetworkRecords.h"

#include <tinyxml.h>

/// The attributes of the two time zone documents. They differ in their roots and in what they call the zone itself,
/// which each hands over as @p zone.
namespace [[gnu::visibility("hidden")]] frame
{

void writeTimeZone(TiXmlElement& element, const char* zone, const TimeZoneParam& param);
/// A missing attribute leaves its field.
void readTimeZone(const TiXmlElement& element, const char* zone, TimeZoneParam& param);

/// False if the node is empty.
bool writeTimeZone(SafePointer<DomainXmlNode>& node, const char* zone, const TimeZoneParam& param);
/// False if the node is empty or lacks a property; those before it are read.
bool readTimeZone(const SafePointer<DomainXmlNode>& node, const char* zone, TimeZoneParam& param);

} // namespace frame
