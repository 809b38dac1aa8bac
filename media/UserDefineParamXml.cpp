// <UserDefineParamList>
//     <UserDefineParam UserDefineParamType="site">
//         <UserDefineParamItemList>
//             <UserDefineParamItem UserDefineParamItemType="place" UserDefineParamItemValue="gate" />
//         </UserDefineParamItemList>
//     </UserDefineParam>
// </UserDefineParamList>

#include "media/UserDefineParamXml.h"

#include "core/Frame.h"
#include "media/UserDefineParamItemXml.h"

#include <utility>

UserDefineParamXml::UserDefineParamXml() = default;

UserDefineParamXml::~UserDefineParamXml() = default;

void UserDefineParamXml::createXmlNode()
{
    writeElement(document_, params_);
}

bool UserDefineParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool UserDefineParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "UserDefineParamList", document_, node_) && parseXmlNode();
}

bool UserDefineParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, params_);
}

TiXmlElement& UserDefineParamXml::writeElement(TiXmlNode& parent, const std::vector<UserDefineParam>& params)
{
    TiXmlElement& element = frame::appendElement(parent, "UserDefineParamList");
    for (const UserDefineParam& param : params)
    {
        TiXmlElement& item = frame::appendElement(element, "UserDefineParam");
        frame::setText(item, "UserDefineParamType", param.getParamType());
        UserDefineParamItemXml::writeElement(item, param.getParamItemList());
    }
    return element;
}

bool UserDefineParamXml::readElement(const TiXmlElement& element, std::vector<UserDefineParam>& params)
{
    const TiXmlElement* item = frame::firstItem(element, "UserDefineParam");
    for (; item != nullptr; item = item->NextSiblingElement("UserDefineParam"))
    {
        UserDefineParam param;
        param.setParamType(frame::textOf(*item, "UserDefineParamType", param.getParamType()));

        const TiXmlElement* child = item->FirstChildElement("UserDefineParamItemList");
        if (child != nullptr)
        {
            std::vector<UserDefineParamItem> values;
            if (!UserDefineParamItemXml::readElement(*child, values)) return false;
            param.getParamItemList() = std::move(values);
        }
        params.push_back(std::move(param));
    }
    return true;
}

bool UserDefineParamXml::createDomainXmlNode(const std::vector<UserDefineParam>& params,
                                             SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    const UserDefineParamItemXml valuesCodec;
    for (const UserDefineParam& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "UserDefineParam");
        item->setProperty("UserDefineParamType", param.getParamType());

        SafePointer<DomainXmlNode> values = frame::appendNode(item, "UserDefineParamItemList");
        if (!valuesCodec.createDomainXmlNode(param.getParamItemList(), values)) return false;
    }
    return true;
}

bool UserDefineParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                            std::vector<UserDefineParam>& params) const
{
    if (!node) return false;

    const UserDefineParamItemXml valuesCodec;
    TiXmlElement* element = frame::firstChild(node);
    for (; element != nullptr; element = element->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*element);
        UserDefineParam param;
        param.setParamType(
            frame::textProperty(item, "UserDefineParamType", "",
                                "UserDefineParamXml::parseDomainXmlNode node = NODE_USER_DEFINE_PARAM_TYPE failed "));

        SafePointer<DomainXmlNode> child;
        if (item->getConfigNode("UserDefineParamItemList", child))
        {
            std::vector<UserDefineParamItem> values;
            if (!valuesCodec.parseDomainXmlNode(child, values)) return false;
            param.getParamItemList() = std::move(values);
        }
        params.push_back(std::move(param));
    }
    return true;
}

bool UserDefineParamXml::createXmlString(const std::vector<UserDefineParam>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("UserDefineParamList");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

bool UserDefineParamXml::parseXmlString(const std::string& text, std::vector<UserDefineParam>& params) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "UserDefineParamList", node) && parseDomainXmlNode(node, params);
}
