#include "domain/DomainXmlNode.h"

#include "core/Conversions.h"
#include "core/Frame.h"
#include "domain/NodeTree.h"

#include <cstdint>
#include <cstring>
#include <tinyxml.h>

template class SafePointer<DomainXmlNode>;

namespace
{

// A node that holds no tree has the low bit of its pointer set: its element may die before it, and so, when it goes,
// it cannot find out from the element whose that is.

static_assert(alignof(TiXmlElement) % 2 == 0, "no element has an odd address");

TiXmlElement* markForeign(TiXmlElement* element)
{
    return reinterpret_cast<TiXmlElement*>(reinterpret_cast<char*>(element) + 1);
}

bool isForeign(const TiXmlElement* pointer)
{
    return reinterpret_cast<std::uintptr_t>(pointer) % 2 != 0;
}

TiXmlElement* elementOf(TiXmlElement* pointer)
{
    return isForeign(pointer) ? reinterpret_cast<TiXmlElement*>(reinterpret_cast<char*>(pointer) - 1) : pointer;
}

} // namespace

DomainXmlNode::DomainXmlNode(const std::string& name) : DomainXmlNode(frame::makeTree(name))
{
}

DomainXmlNode::DomainXmlNode(TiXmlElement* element) : pointer_(element)
{
    if (element != nullptr && !frame::holdTree(*element)) pointer_ = markForeign(element);
}

DomainXmlNode::~DomainXmlNode()
{
    if (pointer_ != nullptr && !isForeign(pointer_)) frame::releaseTree(*pointer_);
}

bool DomainXmlNode::setProperty(const char* name, int value)
{
    TiXmlElement* element = elementOf(pointer_);
    if (element == nullptr) return false;
    frame::setInt(*element, name, value);
    return true;
}

bool DomainXmlNode::setProperty(const char* name, bool value)
{
    TiXmlElement* element = elementOf(pointer_);
    if (element == nullptr) return false;
    frame::setFlag(*element, name, value);
    return true;
}

bool DomainXmlNode::setProperty(const char* name, float value)
{
    TiXmlElement* element = elementOf(pointer_);
    if (element == nullptr) return false;
    frame::setFloat(*element, name, value);
    return true;
}

bool DomainXmlNode::setProperty(const char* name, unsigned long long value)
{
    TiXmlElement* element = elementOf(pointer_);
    if (element == nullptr) return false;
    frame::setUnsigned(*element, name, value);
    return true;
}

bool DomainXmlNode::setProperty(const char* name, const char* value)
{
    TiXmlElement* element = elementOf(pointer_);
    if (element == nullptr || value == nullptr) return false;
    element->SetAttribute(name, value);
    return true;
}

bool DomainXmlNode::setProperty(const char* name, const std::string& value)
{
    TiXmlElement* element = elementOf(pointer_);
    if (element == nullptr) return false;
    frame::setText(*element, name, value);
    return true;
}

bool DomainXmlNode::getProperty(const char* name, int& value) const
{
    const char* text = propertyOf(name);
    if (text == nullptr) return false;
    value = static_cast<int>(frame::integerIn(text));
    return true;
}

bool DomainXmlNode::getProperty(const char* name, bool& value) const
{
    const char* text = propertyOf(name);
    if (text == nullptr) return false;
    value = frame::flagIn(text);
    return true;
}

bool DomainXmlNode::getProperty(const char* name, float& value) const
{
    const char* text = propertyOf(name);
    if (text == nullptr) return false;
    value = frame::floatIn(text);
    return true;
}

bool DomainXmlNode::getProperty(const char* name, unsigned long long& value) const
{
    const char* text = propertyOf(name);
    if (text == nullptr) return false;
    value = frame::unsignedIn(text);
    return true;
}

bool DomainXmlNode::getProperty(const char* name, std::string& value) const
{
    const char* text = propertyOf(name);
    if (text == nullptr) return false;
    value = text;
    return true;
}

bool DomainXmlNode::addConfigNode(SafePointer<DomainXmlNode>& child)
{
    TiXmlElement* element = elementOf(pointer_);
    TiXmlElement* added = child ? elementOf(child->pointer_) : nullptr;
    return element != nullptr && added != nullptr && frame::joinTrees(*element, *added);
}

void DomainXmlNode::cleanChildren()
{
    TiXmlElement* element = elementOf(pointer_);
    if (element != nullptr) frame::removeChildren(*element);
}

bool DomainXmlNode::getConfigNode(const std::string& name, SafePointer<DomainXmlNode>& child) const
{
    TiXmlElement* element = elementOf(pointer_);
    TiXmlElement* found = element != nullptr ? element->FirstChildElement(name.c_str()) : nullptr;
    if (found == nullptr) return false;
    child = SafePointer<DomainXmlNode>(new DomainXmlNode(found));
    return true;
}

bool DomainXmlNode::getConfigNodeList(const std::string& name, std::vector<SafePointer<DomainXmlNode>>& children) const
{
    if (pointer_ == nullptr) return false;
    collectChildren(name.c_str(), children);
    return true;
}

bool DomainXmlNode::getAllConfigNodeList(std::vector<SafePointer<DomainXmlNode>>& children) const
{
    if (pointer_ == nullptr) return false;
    collectChildren(nullptr, children);
    return true;
}

bool DomainXmlNode::getNodeName(std::string& name) const
{
    TiXmlElement* element = elementOf(pointer_);
    if (element == nullptr) return false;
    name = element->Value();
    return true;
}

TiXmlElement* DomainXmlNode::getXmlNode() const
{
    return elementOf(pointer_);
}

bool DomainXmlNode::parse(const std::string& text, const std::string& root, SafePointer<DomainXmlNode>& node)
{
    return takeTree(frame::parseTree(text, &root), node);
}

bool DomainXmlNode::parse(const std::string& text, SafePointer<DomainXmlNode>& node)
{
    return takeTree(frame::parseTree(text, nullptr), node);
}

bool DomainXmlNode::toString(const SafePointer<DomainXmlNode>& node, std::string& text)
{
    TiXmlElement* element = node ? elementOf(node->pointer_) : nullptr;
    if (element == nullptr) return false;
    frame::print(*element, text);
    return true;
}

bool DomainXmlNode::takeTree(TiXmlElement* element, SafePointer<DomainXmlNode>& node)
{
    if (element == nullptr) return false;
    node = SafePointer<DomainXmlNode>(new DomainXmlNode(element));
    return true;
}

const char* DomainXmlNode::propertyOf(const char* name) const
{
    TiXmlElement* element = elementOf(pointer_);
    return element != nullptr ? frame::attributeOf(*element, name) : nullptr;
}

void DomainXmlNode::collectChildren(const char* name, std::vector<SafePointer<DomainXmlNode>>& children) const
{
    std::vector<TiXmlElement*> elements;
    for (TiXmlElement* element = elementOf(pointer_)->FirstChildElement(); element != nullptr;
         element = element->NextSiblingElement())
    {
        if (name == nullptr || std::strcmp(name, element->Value()) == 0) elements.push_back(element);
    }

    // Room for all of them at once: a vector that grows copies its SafePointers, under a lock each.
    std::vector<SafePointer<DomainXmlNode>> nodes;
    nodes.reserve(elements.size());
    for (TiXmlElement* element : elements)
        nodes.emplace_back(new DomainXmlNode(element));
    children.swap(nodes);
}
