// <NTPParamV2List>
//     <NTPParamV2 NTPEnableFlag="true" NTPIp="time.example.org" NTPPort="123" RunTime="60" IPProtoVer="1" />
// </NTPParamV2List>

#include "network/NTPParamV2Xml.h"

#include "core/Frame.h"

#include <utility>

NTPParamV2Xml::NTPParamV2Xml() = default;

NTPParamV2Xml::~NTPParamV2Xml() = default;

void NTPParamV2Xml::createXmlNode()
{
    writeElement(document_, param_);
}

bool NTPParamV2Xml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool NTPParamV2Xml::parseXmlString()
{
    return frame::parseRoot(text_, "NTPParamV2", document_, node_) && parseXmlNode();
}

bool NTPParamV2Xml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& NTPParamV2Xml::writeElement(TiXmlNode& parent, const NTPParamV2& param)
{
    TiXmlElement& element = frame::appendElement(parent, "NTPParamV2");
    frame::setFlag(element, "NTPEnableFlag", param.getNTPEnableFlag());
    frame::setText(element, "NTPIp", param.getNTPIp());
    frame::setInt(element, "NTPPort", param.getNTPPort());
    frame::setInt(element, "RunTime", param.getNTPRunTime());
    frame::setInt(element, "IPProtoVer", param.getIPProtoVer());
    return element;
}

bool NTPParamV2Xml::readElement(const TiXmlElement& element, NTPParamV2& param)
{
    param.setNTPEnableFlag(frame::flagOf(element, "NTPEnableFlag", false));
    param.setNTPIp(frame::textOf(element, "NTPIp", ""));
    param.setNTPPort(frame::uint16Of(element, "NTPPort", 0));
    param.setNTPRunTime(frame::intOf(element, "RunTime", 0));
    param.setIPProtoVer(frame::intOf(element, "IPProtoVer", 0));
    return true;
}

bool NTPParamV2Xml::createDomainXmlNode(const NTPParamV2& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("NTPEnableFlag", param.getNTPEnableFlag());
    node->setProperty("NTPIp", param.getNTPIp());
    node->setProperty("NTPPort", param.getNTPPort());
    node->setProperty("RunTime", param.getNTPRunTime());
    node->setProperty("IPProtoVer", param.getIPProtoVer());
    return true;
}

bool NTPParamV2Xml::createDomainXmlNode(const std::vector<NTPParamV2>& params, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const NTPParamV2& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "NTPParamV2");
        if (!createDomainXmlNode(param, item)) return false;
    }
    return true;
}

bool NTPParamV2Xml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, NTPParamV2& param) const
{
    if (!node) return false;

    param.setNTPEnableFlag(frame::flagProperty(node, "NTPEnableFlag", false,
                                               "NTPParamV2Xml::parseDomainXmlNode get NTPEnableFlag failed "));
    param.setNTPIp(frame::textProperty(node, "NTPIp", "", "NTPParamV2Xml::parseDomainXmlNode get NTPIp failed "));
    param.setNTPPort(
        frame::uint16Property(node, "NTPPort", 0, "NTPParamV2Xml::parseDomainXmlNode get NTPPort failed "));
    param.setNTPRunTime(
        frame::intProperty(node, "RunTime", 0, "NTPParamV2Xml::parseDomainXmlNode get RunTime failed "));
    param.setIPProtoVer(
        frame::intProperty(node, "IPProtoVer", 0, "NTPParamV2Xml::parseDomainXmlNode get IPProtoVer failed "));
    return true;
}

bool NTPParamV2Xml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<NTPParamV2>& params) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        NTPParamV2 param;
        if (!parseDomainXmlNode(frame::nodeOf(*item), param)) return false;
        params.push_back(std::move(param));
    }
    return true;
}

bool NTPParamV2Xml::createXmlString(const NTPParamV2& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("NTPParamV2");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool NTPParamV2Xml::createXmlString(const std::vector<NTPParamV2>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("NTPParamV2List");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

bool NTPParamV2Xml::parseXmlString(const std::string& text, NTPParamV2& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "NTPParamV2", node) && parseDomainXmlNode(node, param);
}

bool NTPParamV2Xml::parseXmlString(const std::string& text, std::vector<NTPParamV2>& params) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "NTPParamV2List", node) && parseDomainXmlNode(node, params);
}
