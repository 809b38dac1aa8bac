#pragma once

#include "core/SafePointer.h"
#include "domain/DomainXmlNode.h"

#include <tinyxml.h>

/// The steps that the codecs of recordings share, beside those of all codecs.
namespace [[gnu::visibility("hidden")]] frame
{

/// Writes a time as the text of `TimeConverter`.
void setTime(TiXmlElement& element, const char* name, unsigned long seconds);
/// Reads such a text; one that is no time gives 0.
unsigned long timeOf(const TiXmlElement& element, const char* name, unsigned long missing);

/// @name Strict properties
/// For the reader that refuses what every other takes for 0 or false: false if the value is there and is none of its
/// kind.
/// @{
bool takeInt(const SafePointer<DomainXmlNode>& node, const char* name, int missing, int& value);
bool takeFlag(const SafePointer<DomainXmlNode>& node, const char* name, bool missing, bool& value);
/// @}

} // namespace frame
