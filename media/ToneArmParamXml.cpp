// <ToneArmParamList>
//     <ToneArmParam CameraId="1" ToneArmEnableFlag="true" ToneArmType="2" Volume="50" />
// </ToneArmParamList>

#include "media/ToneArmParamXml.h"

#include "core/Frame.h"

ToneArmParamXml::ToneArmParamXml() = default;

ToneArmParamXml::~ToneArmParamXml() = default;

void ToneArmParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool ToneArmParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool ToneArmParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "ToneArmParam", document_, node_) && parseXmlNode();
}

bool ToneArmParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& ToneArmParamXml::writeElement(TiXmlNode& parent, const ToneArmParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "ToneArmParam");
    frame::setInt(element, "CameraId", param.getCameraId());
    frame::setFlag(element, "ToneArmEnableFlag", param.getToneArmEnableFlag());
    frame::setInt(element, "ToneArmType", param.getToneArmType());
    frame::setInt(element, "Volume", param.getVolume());
    return element;
}

bool ToneArmParamXml::readElement(const TiXmlElement& element, ToneArmParam& param)
{
    param.setCameraId(frame::intOf(element, "CameraId", 0));
    param.setToneArmEnableFlag(frame::flagOf(element, "ToneArmEnableFlag", false));
    param.setToneArmType(frame::intOf(element, "ToneArmType", 0));
    param.setVolume(frame::intOf(element, "Volume", 0));
    return true;
}

bool ToneArmParamXml::createDomainXmlNode(const ToneArmParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("CameraId", param.getCameraId());
    node->setProperty("ToneArmEnableFlag", param.getToneArmEnableFlag());
    node->setProperty("ToneArmType", param.getToneArmType());
    node->setProperty("Volume", param.getVolume());
    return true;
}

bool ToneArmParamXml::createDomainXmlNode(const std::vector<ToneArmParam>& params,
                                          SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const ToneArmParam& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "ToneArmParam");
        if (!createDomainXmlNode(param, item)) return false;
    }
    return true;
}

bool ToneArmParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, ToneArmParam& param) const
{
    if (!node) return false;

    param.setCameraId(
        frame::intProperty(node, "CameraId", 0, "ToneArmParamXml::parseDomainXmlNode get CameraId failed "));
    param.setToneArmEnableFlag(frame::flagProperty(
        node, "ToneArmEnableFlag", false, "ToneArmParamXml::parseDomainXmlNode get ToneArmEnableFlag failed "));
    param.setToneArmType(
        frame::intProperty(node, "ToneArmType", 0, "ToneArmParamXml::parseDomainXmlNode get ToneArmType failed "));
    param.setVolume(frame::intProperty(node, "Volume", 0, "ToneArmParamXml::parseDomainXmlNode get Volume failed "));
    return true;
}

bool ToneArmParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                         std::vector<ToneArmParam>& params) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ToneArmParam param;
        if (!parseDomainXmlNode(frame::nodeOf(*item), param)) return false;
        params.push_back(param);
    }
    return true;
}

bool ToneArmParamXml::createXmlString(const ToneArmParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ToneArmParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool ToneArmParamXml::createXmlString(const std::vector<ToneArmParam>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ToneArmParamList");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

bool ToneArmParamXml::parseXmlString(const std::string& text, ToneArmParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ToneArmParam", node) && parseDomainXmlNode(node, param);
}

bool ToneArmParamXml::parseXmlString(const std::string& text, std::vector<ToneArmParam>& params) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ToneArmParamList", node) && parseDomainXmlNode(node, params);
}
