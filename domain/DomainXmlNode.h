#pragma once

#include "core/SafePointer.h"

#include <string>
#include <vector>

class TiXmlElement;

/// A named node: typed properties, which are the attributes of an XML element, and ordered children, which are its
/// child elements.
///
/// Nodes are made by plain `new` and held by `SafePointer<DomainXmlNode>`.
///
/// @par Lifetime
/// A tree made by name or by `parse` lives as long as any node of it is held, whichever died first, and so do children
/// that `cleanChildren` removed. A node that wraps an element of somebody else's tree frees nothing and is of use only
/// as long as that element lives; it may die after it.
///
/// @par Values
/// Integers and floats are decimal, a `bool` is "true" or "false". A property that is there but is no number reads as
/// its leading digits, or 0; one that is no flag reads as false. No operation raises or prints.
///
/// @par Threads
/// A tree belongs to one thread at a time.
class DomainXmlNode
{
public:
    /// A new node, the top of a tree of its own.
    explicit DomainXmlNode(const std::string& name);
    /// A node for an element that somebody else owns; with null, every operation fails. The element must not change
    /// owner as long as the node lives: it may be copied into another tree, but not linked into one.
    explicit DomainXmlNode(TiXmlElement* element);
    ~DomainXmlNode();

    DomainXmlNode(const DomainXmlNode&) = delete;
    DomainXmlNode& operator=(const DomainXmlNode&) = delete;

    /// @name Writing
    /// Sets a property, in place of an earlier one of that name; a new one stands behind the others.
    /// @return false if @p value is a null text, or if the node has no element.
    /// @{
    bool setProperty(const char* name, int value);
    bool setProperty(const char* name, bool value);
    bool setProperty(const char* name, float value);
    bool setProperty(const char* name, unsigned long long value);
    bool setProperty(const char* name, const char* value);
    bool setProperty(const char* name, const std::string& value);
    bool setProperty(const std::string& name, int value) { return setProperty(name.c_str(), value); }
    bool setProperty(const std::string& name, bool value) { return setProperty(name.c_str(), value); }
    bool setProperty(const std::string& name, float value) { return setProperty(name.c_str(), value); }
    bool setProperty(const std::string& name, unsigned long long value) { return setProperty(name.c_str(), value); }
    bool setProperty(const std::string& name, const char* value) { return setProperty(name.c_str(), value); }
    bool setProperty(const std::string& name, const std::string& value) { return setProperty(name.c_str(), value); }
    /// @}

    /// @name Reading
    /// @return false if there is no property of that name, and then @p value is as it was.
    /// @{
    bool getProperty(const char* name, int& value) const;
    bool getProperty(const char* name, bool& value) const;
    bool getProperty(const char* name, float& value) const;
    bool getProperty(const char* name, unsigned long long& value) const;
    bool getProperty(const char* name, std::string& value) const;
    bool getProperty(const std::string& name, int& value) const { return getProperty(name.c_str(), value); }
    bool getProperty(const std::string& name, bool& value) const { return getProperty(name.c_str(), value); }
    bool getProperty(const std::string& name, float& value) const { return getProperty(name.c_str(), value); }
    bool getProperty(const std::string& name, unsigned long long& value) const
    {
        return getProperty(name.c_str(), value);
    }
    bool getProperty(const std::string& name, std::string& value) const { return getProperty(name.c_str(), value); }
    /// @}

    /// Adds @p child, with all that lies below it, behind the existing children.
    ///
    /// A child that is the top of its tree is moved here; one from the middle of a tree, and any that this library does
    /// not own, is copied. Whoever adds a child must not count on seeing later changes to it here.
    /// @return false if @p child is empty, or if it is this node or one above it.
    bool addConfigNode(SafePointer<DomainXmlNode>& child);

    /// Removes all children; the properties stay.
    void cleanChildren();

    /// The first child of that name.
    /// @return false if there is none, and then @p child is as it was.
    bool getConfigNode(const std::string& name, SafePointer<DomainXmlNode>& child) const;

    /// All children of that name, in document order, in place of what @p children held. None is no failure.
    bool getConfigNodeList(const std::string& name, std::vector<SafePointer<DomainXmlNode>>& children) const;

    /// All children whatever their names, in document order, in place of what @p children held. None is no failure.
    bool getAllConfigNodeList(std::vector<SafePointer<DomainXmlNode>>& children) const;

    bool getNodeName(std::string& name) const;

    /// The element behind the node; valid as long as the node lives. Others may copy it, but not link it elsewhere.
    TiXmlElement* getXmlNode() const;

    /// Parses @p text into a new tree and gives its root element, the first element of the text.
    /// @return false, with @p node as it was, if the text is malformed or its root is not called @p root.
    static bool parse(const std::string& text, const std::string& root, SafePointer<DomainXmlNode>& node);
    /// The same with a root of any name.
    static bool parse(const std::string& text, SafePointer<DomainXmlNode>& node);

    /// Prints the node with all that lies below it, an element a line, indented by tabs.
    /// @return false, with @p text as it was, if @p node is empty.
    static bool toString(const SafePointer<DomainXmlNode>& node, std::string& text);

private:
    static bool takeTree(TiXmlElement* element, SafePointer<DomainXmlNode>& node);

    const char* propertyOf(const char* name) const;
    void collectChildren(const char* name, std::vector<SafePointer<DomainXmlNode>>& children) const;

    TiXmlElement* pointer_; // to the element; marked if the tree is somebody else's
};

extern template class SafePointer<DomainXmlNode>;
