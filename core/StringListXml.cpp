// <StringParamList>
//     <StringParam String="first" />
//     <StringParam String="second" />
// </StringParamList>

#include "core/StringListXml.h"

#include "core/Frame.h"

StringListXml::StringListXml() = default;

StringListXml::~StringListXml() = default;

bool StringListXml::createXmlString(const std::vector<std::string>& list, std::string& text) const
{
    SafePointer<DomainXmlNode> root = frame::makeNode("StringParamList");
    for (const std::string& string : list)
        frame::appendNode(root, "StringParam")->setProperty("String", string);
    return DomainXmlNode::toString(root, text);
}

bool StringListXml::parseXmlString(const std::string& text, std::vector<std::string>& list) const
{
    SafePointer<DomainXmlNode> root;
    if (!DomainXmlNode::parse(text, "StringParamList", root)) return false;

    const TiXmlElement* item = frame::firstItem(*root->getXmlNode(), "StringParam");
    for (; item != nullptr; item = item->NextSiblingElement("StringParam"))
        list.push_back(frame::textOf(*item, "String", ""));
    return true;
}
