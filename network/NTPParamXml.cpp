// <NTPParam NTPEnableFlag="true" NTPIp="time.example.org" NTPPort="123" RunTime="60" IPProtoVer="1" />

#include "network/NTPParamXml.h"

#include "core/Frame.h"

#include <utility>

NTPParamXml::NTPParamXml() = default;

NTPParamXml::~NTPParamXml() = default;

void NTPParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool NTPParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool NTPParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "NTPParam", document_, node_) && parseXmlNode();
}

bool NTPParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& NTPParamXml::writeElement(TiXmlNode& parent, const NTPParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "NTPParam");
    frame::setFlag(element, "NTPEnableFlag", param.getNTPEnableFlag());
    frame::setText(element, "NTPIp", param.getNTPIp());
    frame::setInt(element, "NTPPort", param.getNTPPort());
    frame::setInt(element, "RunTime", param.getNTPRunTime());
    frame::setInt(element, "IPProtoVer", param.getIPProtoVer());
    return element;
}

bool NTPParamXml::readElement(const TiXmlElement& element, NTPParam& param)
{
    param.setNTPEnableFlag(frame::flagOf(element, "NTPEnableFlag", false));
    param.setNTPIp(frame::textOf(element, "NTPIp", ""));
    param.setNTPPort(frame::uint16Of(element, "NTPPort", 0));
    param.setNTPRunTime(frame::intOf(element, "RunTime", 0));
    param.setIPProtoVer(frame::intOf(element, "IPProtoVer", 0));
    return true;
}

bool NTPParamXml::createDomainXmlNode(const NTPParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("NTPEnableFlag", param.getNTPEnableFlag());
    node->setProperty("NTPIp", param.getNTPIp());
    node->setProperty("NTPPort", param.getNTPPort());
    node->setProperty("RunTime", param.getNTPRunTime());
    node->setProperty("IPProtoVer", param.getIPProtoVer());
    return true;
}

bool NTPParamXml::createDomainXmlNode(const std::vector<NTPParam>& params, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const NTPParam& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "NTPParam");
        if (!createDomainXmlNode(param, item)) return false;
    }
    return true;
}

bool NTPParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, NTPParam& param) const
{
    if (!node) return false;

    param.setNTPEnableFlag(frame::flagProperty(node, "NTPEnableFlag", false));
    param.setNTPIp(frame::textProperty(node, "NTPIp", ""));
    param.setNTPPort(frame::uint16Property(node, "NTPPort", 123));
    param.setNTPRunTime(frame::intProperty(node, "RunTime", 0));
    param.setIPProtoVer(frame::intProperty(node, "IPProtoVer", 1));
    return true;
}

bool NTPParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, std::vector<NTPParam>& params) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        NTPParam param;
        if (!parseDomainXmlNode(frame::nodeOf(*item), param)) return false;
        params.push_back(std::move(param));
    }
    return true;
}

bool NTPParamXml::createXmlString(const NTPParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("NTPParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool NTPParamXml::createXmlString(const std::vector<NTPParam>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("NTPParam");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

bool NTPParamXml::parseXmlString(const std::string& text, NTPParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "NTPParam", node) && parseDomainXmlNode(node, param);
}

bool NTPParamXml::parseXmlString(const std::string& text, std::vector<NTPParam>& params) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "NTPParam", node) && parseDomainXmlNode(node, params);
}
