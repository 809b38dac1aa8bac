#pragma once

#include "core/SafePointer.h"
#include "domain/AnalysisRecords.h"
#include "domain/DomainXmlNode.h"

#include <tinyxml.h>

/// The steps that several analysis rules take.
///
/// Peers print what a rule embeds as a document of its own and parse that text again, in both directions. Here the
/// elements are written and read in place, with the same result.
namespace [[gnu::visibility("hidden")]] frame
{

/// @name Children
/// A writer adds the child to @p node, a reader looks it up there; both are false if @p node is empty.
/// @{

bool appendBasePart(SafePointer<DomainXmlNode>& node, const IntelligeBaseParam& base);
/// A missing base part gives a new one.
void readBasePart(const SafePointer<DomainXmlNode>& node, IntelligeBaseParam& base);

bool appendPolygonArea(SafePointer<DomainXmlNode>& node, const PolygonArea& area);
/// False too without the child.
bool readPolygonArea(const SafePointer<DomainXmlNode>& node, PolygonArea& area);

bool appendLineCross(SafePointer<DomainXmlNode>& node, const LineCross& line);
/// False too without the child.
bool readLineCross(const SafePointer<DomainXmlNode>& node, LineCross& line);

/// False too for a map that cannot be written.
bool appendDetectionAreaV2(SafePointer<DomainXmlNode>& node, const DetectionAreaV2& area);
/// False too without the child.
bool readDetectionAreaV2(const SafePointer<DomainXmlNode>& node, DetectionAreaV2& area);

/// The first "Region" of the child "RegionList"; null without one.
TiXmlElement* firstRegion(const SafePointer<DomainXmlNode>& node);

/// @}
/// @name Properties that regions have in common
/// @{

void setTarget(SafePointer<DomainXmlNode>& node, const TargetRegionParam& region);
void readTarget(const SafePointer<DomainXmlNode>& node, TargetRegionParam& region);

void setLinger(SafePointer<DomainXmlNode>& node, const LingerRegionParam& region);
void readLinger(const SafePointer<DomainXmlNode>& node, LingerRegionParam& region);

/// @}

} // namespace frame
