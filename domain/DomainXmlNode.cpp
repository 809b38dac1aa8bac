#include "domain/DomainXmlNode.h"

#include "core/Conversions.h"
#include "core/Frame.h"
#include "domain/NodeTree.h"

#include <cstring>
#include <tinyxml.h>

template class SafePointer<DomainXmlNode>;

DomainXmlNode::DomainXmlNode(const std::string& name) : DomainXmlNode(frame::makeTree(name))
{
}

DomainXmlNode::DomainXmlNode(TiXmlElement* element) : element_(element)
{
    frame::holdTree(element_);
}

DomainXmlNode::~DomainXmlNode()
{
    frame::releaseTree(element_);
}

bool DomainXmlNode::setProperty(const char* name, int value)
{
    if (element_ == nullptr) return false;
    frame::setInt(*element_, name, value);
    return true;
}

bool DomainXmlNode::setProperty(const char* name, bool value)
{
    if (element_ == nullptr) return false;
    frame::setFlag(*element_, name, value);
    return true;
}

bool DomainXmlNode::setProperty(const char* name, float value)
{
    if (element_ == nullptr) return false;
    frame::setFloat(*element_, name, value);
    return true;
}

bool DomainXmlNode::setProperty(const char* name, unsigned long long value)
{
    if (element_ == nullptr) return false;
    frame::setUnsigned(*element_, name, value);
    return true;
}

bool DomainXmlNode::setProperty(const char* name, const char* value)
{
    if (element_ == nullptr || value == nullptr) return false;
    element_->SetAttribute(name, value);
    return true;
}

bool DomainXmlNode::setProperty(const char* name, const std::string& value)
{
    if (element_ == nullptr) return false;
    frame::setText(*element_, name, value);
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
    if (element_ == nullptr || !child || child->element_ == nullptr) return false;
    return frame::joinTrees(*element_, *child->element_);
}

void DomainXmlNode::cleanChildren()
{
    if (element_ != nullptr) frame::removeChildren(*element_);
}

bool DomainXmlNode::getConfigNode(const std::string& name, SafePointer<DomainXmlNode>& child) const
{
    TiXmlElement* element = element_ != nullptr ? element_->FirstChildElement(name.c_str()) : nullptr;
    if (element == nullptr) return false;
    child = SafePointer<DomainXmlNode>(new DomainXmlNode(element));
    return true;
}

bool DomainXmlNode::getConfigNodeList(const std::string& name, std::vector<SafePointer<DomainXmlNode>>& children) const
{
    if (element_ == nullptr) return false;
    collectChildren(name.c_str(), children);
    return true;
}

bool DomainXmlNode::getAllConfigNodeList(std::vector<SafePointer<DomainXmlNode>>& children) const
{
    if (element_ == nullptr) return false;
    collectChildren(nullptr, children);
    return true;
}

bool DomainXmlNode::getNodeName(std::string& name) const
{
    if (element_ == nullptr) return false;
    name = element_->Value();
    return true;
}

TiXmlElement* DomainXmlNode::getXmlNode() const
{
    return element_;
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
    if (!node || node->element_ == nullptr) return false;
    frame::print(*node->element_, text);
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
    return element_ != nullptr ? frame::attributeOf(*element_, name) : nullptr;
}

void DomainXmlNode::collectChildren(const char* name, std::vector<SafePointer<DomainXmlNode>>& children) const
{
    std::vector<TiXmlElement*> elements;
    for (TiXmlElement* element = element_->FirstChildElement(); element != nullptr;
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
