#pragma once

#include <tinyxml.h>
#include <vector>

/// The steps that the documents of abilities share. Much of what they say stands in children of their own, each with
/// one attribute: `<CameraId value="1" />`.
namespace [[gnu::visibility("hidden")]] frame
{

/// Appends a child that holds @p value in its attribute @p name.
/// @{
void appendInt(TiXmlElement& parent, const char* child, const char* name, int value);
void appendFlag(TiXmlElement& parent, const char* child, const char* name, bool value);
/// @}

/// What the first child of that name holds in its attribute @p name; @p missing without either.
/// @{
int childIntOf(const TiXmlElement& parent, const char* child, const char* name, int missing);
bool childFlagOf(const TiXmlElement& parent, const char* child, const char* name, bool missing);
/// @}

/// Appends a container with a child named @p item for each number.
void appendInts(TiXmlElement& parent, const char* container, const char* item, const char* name,
                const std::vector<int>& values);

/// Adds the numbers of a container to @p values: those of its first child named @p item and of every element behind it,
/// 0 for one that lacks the attribute. Without the container or an item there are none.
void readInts(const TiXmlElement& parent, const char* container, const char* item, const char* name,
              std::vector<int>& values);

} // namespace frame
