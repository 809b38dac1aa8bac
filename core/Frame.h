#pragma once

#include "core/SafePointer.h"
#include "domain/DomainXmlNode.h"

#include <cstdint>
#include <string>
#include <tinyxml.h>

/// The steps that all codecs take, each once. A codec is what is left: its own names, in the document's order.
///
/// The last argument but a line of every reading function says what a missing value gives: 0, "" or false for a field
/// that is reset, the record's own value for one that is left, and any other default as it stands. A value that is
/// there is never an error: a number reads as its leading digits, narrowed to the field's type, or as 0; a flag that is
/// neither true nor false reads as false.
namespace [[gnu::visibility("hidden")]] frame
{

/// @name Documents
/// @{

/// Parses @p text behind what @p document holds already. False if it is malformed, or beyond the limits on nesting and
/// attributes; the document's error is set then.
bool parse(TiXmlDocument& document, const std::string& text);

/// The same, then looks up the document's element named @p root and stores it. False, with @p node as it was, without
/// it.
bool parseRoot(const std::string& text, const char* root, TiXmlDocument& document, TiXmlNode*& node);

/// Prints @p node with all that lies below it, in place of what @p text held.
void print(const TiXmlNode& node, std::string& text);

/// The element that @p node is; null if it is none.
const TiXmlElement* elementOf(const TiXmlNode* node);

/// @}
/// @name Writing elements
/// @{

TiXmlElement& appendElement(TiXmlNode& parent, const char* name);

void setInt(TiXmlElement& element, const char* name, int value);
void setInt64(TiXmlElement& element, const char* name, long long value);
void setUnsigned(TiXmlElement& element, const char* name, unsigned long long value);
void setFloat(TiXmlElement& element, const char* name, float value);
void setDouble(TiXmlElement& element, const char* name, double value);
void setFlag(TiXmlElement& element, const char* name, bool value);
void setText(TiXmlElement& element, const char* name, const std::string& value);

/// @}
/// @name Reading elements
/// @{

/// The attribute's text; null if it is missing.
const char* attributeOf(const TiXmlElement& element, const char* name);

int intOf(const TiXmlElement& element, const char* name, int missing);
std::uint16_t uint16Of(const TiXmlElement& element, const char* name, std::uint16_t missing);
std::uint32_t uint32Of(const TiXmlElement& element, const char* name, std::uint32_t missing);
long longOf(const TiXmlElement& element, const char* name, long missing);
unsigned long unsignedLongOf(const TiXmlElement& element, const char* name, unsigned long missing);
long long int64Of(const TiXmlElement& element, const char* name, long long missing);
unsigned long long unsignedOf(const TiXmlElement& element, const char* name, unsigned long long missing);
float floatOf(const TiXmlElement& element, const char* name, float missing);
double doubleOf(const TiXmlElement& element, const char* name, double missing);
bool flagOf(const TiXmlElement& element, const char* name, bool missing);
std::string textOf(const TiXmlElement& element, const char* name, const char* missing);
std::string textOf(const TiXmlElement& element, const char* name, const std::string& missing);

/// For the 64-bit values that peers read by way of a `double`: see `wholeNumberIn`.
long long wholeNumberOf(const TiXmlElement& element, const char* name, long long missing);

/// For the readers to whom a text that begins with no number counts as missing.
int queriedIntOf(const TiXmlElement& element, const char* name, int missing);

/// The first element named @p item below @p list; null if there is none. The walk from there takes every sibling
/// element, whatever its name.
const TiXmlElement* firstItem(const TiXmlElement& list, const char* item);
/// The same, with the list in a container of its own.
const TiXmlElement* firstItem(const TiXmlElement& parent, const char* container, const char* item);

/// @}
/// @name Nodes
/// @{

/// A node that is the top of a tree of its own.
SafePointer<DomainXmlNode> makeNode(const char* name);
/// A node for @p element, which stands in the tree of a node that is held.
SafePointer<DomainXmlNode> nodeOf(TiXmlElement& element);
/// The first child of @p node, whatever its name; null if there is none. Readers of lists walk on from there by
/// `NextSiblingElement` and hold one item at a time: nodes for all at once would take more room than the items.
TiXmlElement* firstChild(const SafePointer<DomainXmlNode>& node);
/// A new child at the end of @p parent; a node without an element if that has none.
SafePointer<DomainXmlNode> appendNode(SafePointer<DomainXmlNode>& parent, const char* name);

// Where a line is given, a missing property prints it.

int intProperty(const SafePointer<DomainXmlNode>& node, const char* name, int missing, const char* line = nullptr);
std::uint16_t uint16Property(const SafePointer<DomainXmlNode>& node, const char* name, std::uint16_t missing,
                             const char* line = nullptr);
std::uint32_t uint32Property(const SafePointer<DomainXmlNode>& node, const char* name, std::uint32_t missing,
                             const char* line = nullptr);
unsigned long long unsignedProperty(const SafePointer<DomainXmlNode>& node, const char* name,
                                    unsigned long long missing, const char* line = nullptr);
float floatProperty(const SafePointer<DomainXmlNode>& node, const char* name, float missing,
                    const char* line = nullptr);
double doubleProperty(const SafePointer<DomainXmlNode>& node, const char* name, double missing,
                      const char* line = nullptr);
bool flagProperty(const SafePointer<DomainXmlNode>& node, const char* name, bool missing, const char* line = nullptr);
std::string textProperty(const SafePointer<DomainXmlNode>& node, const char* name, const std::string& missing,
                         const char* line = nullptr);

/// @}

} // namespace frame
