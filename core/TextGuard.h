#pragma once

/// What a text is measured for before TinyXML sees it. TinyXML descends the stack once for each level of elements and
/// compares each attribute with all before it, so the nesting and the attributes of a hostile text have to be bounded.
namespace [[gnu::visibility("hidden")]] frame
{

constexpr unsigned maximumDepth = 32;       // the deepest document of ours has ten levels
constexpr unsigned maximumAttributes = 256; // of one element

/// Whether no more than @p depth elements are open at a time and no element has more than @p attributes, as far as
/// TinyXML would read. One linear pass.
bool withinLimits(const char* text, unsigned depth, unsigned attributes);

/// Whether one of the last three bytes begins a UTF-8 character that goes on behind the text's end.
bool endsInsideCharacter(const char* text);

} // namespace frame
