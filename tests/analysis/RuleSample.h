#pragma once

#include "domain/AnalysisRecords.h"
#include "domain/DomainXmlNode.h"

#include <string>
#include <vector>

/// @file
/// What rules embed, with a distinct value in every field.

/// Fills the base part of a rule.
void setBasePart(IntelligeBaseParam& rule);
void expectBasePart(const IntelligeBaseParam& expected, const IntelligeBaseParam& rule);

PolygonArea samplePolygonArea();
void expectPolygonArea(const PolygonArea& expected, const PolygonArea& area);

LineCross sampleLineCross();
LineCross otherLineCross();
void expectLineCross(const LineCross& expected, const LineCross& line);

void expectTarget(const TargetRegionParam& expected, const TargetRegionParam& region);
void expectLinger(const LingerRegionParam& expected, const LingerRegionParam& region);

/// The text that @p node prints.
std::string textOf(const SafePointer<DomainXmlNode>& node);
/// Adds the tree of @p text to @p node: how peers embed a document in another.
void addText(const std::string& text, SafePointer<DomainXmlNode>& node);
/// @p text, where all @p flags are true, with @p flag alone true.
std::string withOneFlag(std::string text, const std::vector<std::string>& flags, const std::string& flag);
