// <ProtocolConfigParamList>
//     <ProtocolConfigParam>
//         <ProtocolConfigParamItem ProtocolName="CMS" ProtocolVersion="2.0" EnableFlag="true" />
//     </ProtocolConfigParam>
// </ProtocolConfigParamList>

#include "network/ProtocolConfigParamXml.h"

#include "core/Frame.h"

#include <utility>

ProtocolConfigParamXml::ProtocolConfigParamXml() = default;

ProtocolConfigParamXml::~ProtocolConfigParamXml() = default;

bool ProtocolConfigParamXml::create(const ProtocolConfigParam& param, SafePointer<DomainXmlNode>& node) const
{
    node = frame::makeNode("ProtocolConfigParam");
    return createDomainXmlNode(param, node);
}

bool ProtocolConfigParamXml::createProtocolConfigParamItem(const ProtocolConfigParamItem& item,
                                                           SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    SafePointer<DomainXmlNode> itemNode = frame::appendNode(node, "ProtocolConfigParamItem");
    itemNode->setProperty("ProtocolName", item.getProtocolName());
    itemNode->setProperty("ProtocolVersion", item.getProtocolVersion());
    itemNode->setProperty("EnableFlag", item.getEnableFlag());
    return true;
}

bool ProtocolConfigParamXml::parse(const SafePointer<DomainXmlNode>& node, ProtocolConfigParam& param) const
{
    std::vector<SafePointer<DomainXmlNode>> items;
    if (!node || !node->getConfigNodeList("ProtocolConfigParamItem", items)) return false;

    for (const SafePointer<DomainXmlNode>& itemNode : items)
    {
        ProtocolConfigParamItem item;
        if (!parseProtocolConfigParamItem(itemNode, item)) return false;
        param.setProtocolConfigParam(item);
    }
    return true;
}

bool ProtocolConfigParamXml::parseProtocolConfigParamItem(const SafePointer<DomainXmlNode>& node,
                                                          ProtocolConfigParamItem& item) const
{
    if (!node) return false;

    std::string text;
    if (!node->getProperty("ProtocolName", text)) return false;
    item.setProtocolName(text);
    if (!node->getProperty("ProtocolVersion", text)) return false;
    item.setProtocolVersion(text);
    bool enable = false;
    if (!node->getProperty("EnableFlag", enable)) return false;
    item.setEnableFlag(enable);
    return true;
}

bool ProtocolConfigParamXml::createDomainXmlNode(const ProtocolConfigParam& param,
                                                 SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const ProtocolConfigParamItem& item : param.getProtocolConfigParam())
    {
        if (!createProtocolConfigParamItem(item, node)) return false;
    }
    return true;
}

bool ProtocolConfigParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                ProtocolConfigParam& param) const
{
    return parse(node, param);
}

bool ProtocolConfigParamXml::createXmlString(const ProtocolConfigParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node;
    return create(param, node) && DomainXmlNode::toString(node, text);
}

bool ProtocolConfigParamXml::parseXmlString(const std::string& text, ProtocolConfigParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ProtocolConfigParam", node) && parse(node, param);
}

bool ProtocolConfigParamXml::createDomainXmlNode(const std::vector<ProtocolConfigParam>& params,
                                                 SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const ProtocolConfigParam& param : params)
    {
        SafePointer<DomainXmlNode> paramNode = frame::appendNode(node, "ProtocolConfigParam");
        if (!createDomainXmlNode(param, paramNode)) return false;
    }
    return true;
}

bool ProtocolConfigParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                std::vector<ProtocolConfigParam>& params) const
{
    const TiXmlElement* list = node ? node->getXmlNode() : nullptr;
    if (list == nullptr) return false;

    // Lenient, where a record on its own is read strictly, as the peers do it.
    const TiXmlElement* element = frame::firstItem(*list, "ProtocolConfigParam");
    for (; element != nullptr; element = element->NextSiblingElement("ProtocolConfigParam"))
    {
        ProtocolConfigParam param;
        const TiXmlElement* itemElement = frame::firstItem(*element, "ProtocolConfigParamItem");
        for (; itemElement != nullptr; itemElement = itemElement->NextSiblingElement("ProtocolConfigParamItem"))
        {
            ProtocolConfigParamItem item;
            item.setProtocolName(frame::textOf(*itemElement, "ProtocolName", ""));
            item.setProtocolVersion(frame::textOf(*itemElement, "ProtocolVersion", ""));
            item.setEnableFlag(frame::flagOf(*itemElement, "EnableFlag", false));
            param.setProtocolConfigParam(item);
        }
        params.push_back(std::move(param));
    }
    return true;
}

bool ProtocolConfigParamXml::createXmlString(const std::vector<ProtocolConfigParam>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ProtocolConfigParamList");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

bool ProtocolConfigParamXml::parseXmlString(const std::string& text, std::vector<ProtocolConfigParam>& params) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ProtocolConfigParamList", node) && parseDomainXmlNode(node, params);
}
