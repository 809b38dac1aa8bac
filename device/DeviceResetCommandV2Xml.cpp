// <HoldTypeList>
//     <HoldType Type="1" />
//     <HoldType Type="4" />
// </HoldTypeList>

#include "device/DeviceResetCommandV2Xml.h"

#include "core/Frame.h"

DeviceResetCommandV2Xml::DeviceResetCommandV2Xml() = default;

DeviceResetCommandV2Xml::~DeviceResetCommandV2Xml() = default;

bool DeviceResetCommandV2Xml::createXmlString(const std::vector<int>& holdTypes, std::string& text) const
{
    SafePointer<DomainXmlNode> root = frame::makeNode("HoldTypeList");
    for (const int holdType : holdTypes)
        frame::appendNode(root, "HoldType")->setProperty("Type", holdType);
    return DomainXmlNode::toString(root, text);
}

bool DeviceResetCommandV2Xml::parseXmlString(const std::string& text, std::vector<int>& holdTypes) const
{
    SafePointer<DomainXmlNode> root;
    if (!DomainXmlNode::parse(text, "HoldTypeList", root)) return false;

    const TiXmlElement* item = frame::firstChild(root);
    for (; item != nullptr; item = item->NextSiblingElement())
        holdTypes.push_back(frame::intOf(*item, "Type", 0));
    return true;
}
