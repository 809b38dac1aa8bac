#include "domain/NodeTree.h"

#include "core/Frame.h"

#include <cstddef>
#include <memory>
#include <tinyxml.h>
#include <typeinfo>
#include <vector>

namespace frame
{

namespace
{

struct Holders
{
    std::size_t count = 0;
    std::vector<TiXmlNode*> removed; // by removeChildren; each still knows its parent, and so its tree
};

// What tells a tree of ours is the type of its top. Clone() gives the plain types, so no copy is taken for a tree's
// top.

class TreeElement final : public TiXmlElement
{
public:
    using TiXmlElement::TiXmlElement;

    Holders holders;
};

class TreeDocument final : public TiXmlDocument
{
public:
    Holders holders;
};

// TinyXML links nodes but does not unlink them without deleting them. A derived class may name the links.
struct Links : TiXmlNode
{
    static TiXmlNode*& parentOf(TiXmlNode& node) { return node.*&Links::parent; }
    static TiXmlNode*& nextOf(TiXmlNode& node) { return node.*&Links::next; }
    static TiXmlNode*& previousOf(TiXmlNode& node) { return node.*&Links::prev; }
    static TiXmlNode*& firstChildOf(TiXmlNode& node) { return node.*&Links::firstChild; }
    static TiXmlNode*& lastChildOf(TiXmlNode& node) { return node.*&Links::lastChild; }
};

TiXmlNode& topOf(TiXmlNode& node)
{
    TiXmlNode* top = &node;
    while (top->Parent() != nullptr)
        top = top->Parent();
    return *top;
}

/// The holders of the tree whose top is @p top; null if it is not ours.
Holders* holdersOf(TiXmlNode& top)
{
    if (typeid(top) == typeid(TreeElement)) return &static_cast<TreeElement&>(top).holders;
    if (typeid(top) == typeid(TreeDocument)) return &static_cast<TreeDocument&>(top).holders;
    return nullptr;
}

/// Deletes a tree without recursion: the children of each node join the end of the row before the node is deleted.
void deleteTree(TiXmlNode* node)
{
    TiXmlNode* last = node;
    Links::nextOf(*last) = nullptr;
    while (node != nullptr)
    {
        if (node->FirstChild() != nullptr)
        {
            Links::nextOf(*last) = node->FirstChild();
            last = node->LastChild();
            Links::firstChildOf(*node) = nullptr;
            Links::lastChildOf(*node) = nullptr;
        }
        TiXmlNode* next = Links::nextOf(*node);
        delete node;
        node = next;
    }
}

void deleteTrees(const std::vector<TiXmlNode*>& tops)
{
    for (TiXmlNode* top : tops)
        deleteTree(top);
}

/// The tree that can be moved as a whole below another node when @p element is: that of which @p element is the top, or
/// the parsed text of which it is the only element. Null if there is none.
TiXmlNode* movableTree(TiXmlElement& element)
{
    TiXmlNode* parent = element.Parent();
    if (parent == nullptr) return typeid(element) == typeid(TreeElement) ? &element : nullptr;
    if (typeid(*parent) != typeid(TreeDocument)) return nullptr;
    const bool alone = parent->FirstChildElement() == &element && element.NextSiblingElement() == nullptr;
    return alone ? parent : nullptr;
}

void unlink(TiXmlNode& node)
{
    TiXmlNode* parent = node.Parent();
    TiXmlNode* previous = Links::previousOf(node);
    TiXmlNode* next = Links::nextOf(node);
    (previous != nullptr ? Links::nextOf(*previous) : Links::firstChildOf(*parent)) = next;
    (next != nullptr ? Links::previousOf(*next) : Links::lastChildOf(*parent)) = previous;
    Links::parentOf(node) = nullptr;
}

bool isBelowOrSame(const TiXmlNode& node, const TiXmlNode& above)
{
    const TiXmlNode* step = &node;
    while (step != nullptr && step != &above)
        step = step->Parent();
    return step != nullptr;
}

} // namespace

TiXmlElement* makeTree(const std::string& name)
{
    return new TreeElement(name);
}

TiXmlElement* parseTree(const std::string& text, const std::string* root)
{
    std::unique_ptr<TreeDocument> document(new TreeDocument);
    if (!parse(*document, text)) return nullptr;

    const TiXmlElement* element = document->RootElement();
    if (element == nullptr || (root != nullptr && *root != element->Value())) return nullptr;
    return document.release()->RootElement();
}

bool holdTree(TiXmlElement& element)
{
    Holders* holders = holdersOf(topOf(element));
    if (holders == nullptr) return false;
    ++holders->count;
    return true;
}

void releaseTree(TiXmlElement& element)
{
    TiXmlNode& top = topOf(element);
    Holders* holders = holdersOf(top);
    if (holders == nullptr || --holders->count > 0) return;

    const std::vector<TiXmlNode*> removed = std::move(holders->removed);
    deleteTree(&top);
    deleteTrees(removed);
}

bool joinTrees(TiXmlElement& parent, TiXmlElement& child)
{
    if (isBelowOrSame(parent, child)) return false;

    Holders* target = holdersOf(topOf(parent));
    TiXmlNode* tree = movableTree(child);
    if (target == nullptr || tree == nullptr)
    {
        parent.InsertEndChild(child);
        return true;
    }

    Holders* source = holdersOf(*tree);
    target->count += source->count;
    target->removed.insert(target->removed.end(), source->removed.begin(), source->removed.end());
    source->count = 0;
    source->removed.clear();

    if (tree != &child)
    {
        unlink(child);
        deleteTree(tree);
    }
    parent.LinkEndChild(&child);
    return true;
}

void removeChildren(TiXmlElement& parent)
{
    Holders* holders = holdersOf(topOf(parent));
    const bool shared = holders != nullptr && holders->count > 1;

    for (TiXmlNode* child = parent.FirstChild(); child != nullptr;)
    {
        TiXmlNode* next = child->NextSibling();
        if (shared)
            holders->removed.push_back(child);
        else
            deleteTree(child);
        child = next;
    }
    Links::firstChildOf(parent) = nullptr;
    Links::lastChildOf(parent) = nullptr;
}

} // namespace frame
