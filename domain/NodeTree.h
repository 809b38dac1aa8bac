#pragma once

#include <string>

class TiXmlElement;

/// Who owns the elements behind `DomainXmlNode`s.
///
/// A node has nothing but its element, so the top of a tree of ours counts who holds a node of it; the tree dies with
/// the last. A tree with any other top is somebody else's, and is never counted nor freed here.
namespace [[gnu::visibility("hidden")]] frame
{

/// A new tree of one element, held by nobody yet.
TiXmlElement* makeTree(const std::string& name);

/// The first element of a text, in a new tree held by nobody yet; null if the text is malformed, or if @p root is
/// given and the element has another name.
TiXmlElement* parseTree(const std::string& text, const std::string* root);

/// Counts a holder of @p element's tree. False if the tree is not ours, and then there is nothing to release.
bool holdTree(TiXmlElement& element);

/// Takes a holder off @p element's tree, and frees the tree with the last.
void releaseTree(TiXmlElement& element);

/// Adds @p child at the end of @p parent; moves it if it is the top of a tree of ours, else copies it. False if @p
/// child is @p parent or lies above it.
bool joinTrees(TiXmlElement& parent, TiXmlElement& child);

/// Takes away all that lies below @p parent. Where somebody may hold a node of it, it is kept until the tree dies.
void removeChildren(TiXmlElement& parent);

} // namespace frame
