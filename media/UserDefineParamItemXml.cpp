// <UserDefineParamItemList>
//     <UserDefineParamItem UserDefineParamItemType="place" UserDefineParamItemValue="gate" />
// </UserDefineParamItemList>

#include "media/UserDefineParamItemXml.h"

#include "core/Frame.h"

#include <utility>

UserDefineParamItemXml::UserDefineParamItemXml() = default;

UserDefineParamItemXml::~UserDefineParamItemXml() = default;

void UserDefineParamItemXml::createXmlNode()
{
    writeElement(document_, items_);
}

bool UserDefineParamItemXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool UserDefineParamItemXml::parseXmlString()
{
    return frame::parseRoot(text_, "UserDefineParamItemList", document_, node_) && parseXmlNode();
}

bool UserDefineParamItemXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, items_);
}

TiXmlElement& UserDefineParamItemXml::writeElement(TiXmlNode& parent, const std::vector<UserDefineParamItem>& items)
{
    TiXmlElement& element = frame::appendElement(parent, "UserDefineParamItemList");
    for (const UserDefineParamItem& item : items)
    {
        TiXmlElement& child = frame::appendElement(element, "UserDefineParamItem");
        frame::setText(child, "UserDefineParamItemType", item.getParamItemType());
        frame::setText(child, "UserDefineParamItemValue", item.getParamItemValue());
    }
    return element;
}

bool UserDefineParamItemXml::readElement(const TiXmlElement& element, std::vector<UserDefineParamItem>& items)
{
    const TiXmlElement* child = frame::firstItem(element, "UserDefineParamItem");
    for (; child != nullptr; child = child->NextSiblingElement("UserDefineParamItem"))
    {
        UserDefineParamItem item;
        item.setParamItemType(frame::textOf(*child, "UserDefineParamItemType", item.getParamItemType()));
        item.setParamItemValue(frame::textOf(*child, "UserDefineParamItemValue", item.getParamItemValue()));
        items.push_back(std::move(item));
    }
    return true;
}

bool UserDefineParamItemXml::createDomainXmlNode(const std::vector<UserDefineParamItem>& items,
                                                 SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const UserDefineParamItem& item : items)
    {
        SafePointer<DomainXmlNode> child = frame::appendNode(node, "UserDefineParamItem");
        child->setProperty("UserDefineParamItemType", item.getParamItemType());
        child->setProperty("UserDefineParamItemValue", item.getParamItemValue());
    }
    return true;
}

bool UserDefineParamItemXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                std::vector<UserDefineParamItem>& items) const
{
    if (!node) return false;

    // The peers' lines misspell the names.
    TiXmlElement* element = frame::firstChild(node);
    for (; element != nullptr; element = element->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> child = frame::nodeOf(*element);
        UserDefineParamItem item;
        item.setParamItemType(frame::textProperty(
            child, "UserDefineParamItemType", "",
            "UserDefineParamItemXml::parseDomainXmlNode node = NODE_USER_DEFINE_PARAM_TIEM_TYPE failed "));
        item.setParamItemValue(frame::textProperty(
            child, "UserDefineParamItemValue", "",
            "UserDefineParamItemXml::parseDomainXmlNode node = NODE_USER_DEFINE_PARAM_TIEM_VALUE failed "));
        items.push_back(std::move(item));
    }
    return true;
}

bool UserDefineParamItemXml::createXmlString(const std::vector<UserDefineParamItem>& items, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("UserDefineParamItemList");
    return createDomainXmlNode(items, node) && DomainXmlNode::toString(node, text);
}

bool UserDefineParamItemXml::parseXmlString(const std::string& text, std::vector<UserDefineParamItem>& items) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "UserDefineParamItemList", node) && parseDomainXmlNode(node, items);
}
