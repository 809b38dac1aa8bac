// <LoudhailerParamList>
//     <LoudhailerParam CameraId="1" LoudhailerEnableFlag="true" LoudhailerType="2" Volume="50" />
// </LoudhailerParamList>

#include "media/LoudhailerParamXml.h"

#include "core/Frame.h"

LoudhailerParamXml::LoudhailerParamXml() = default;

LoudhailerParamXml::~LoudhailerParamXml() = default;

void LoudhailerParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool LoudhailerParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool LoudhailerParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "LoudhailerParam", document_, node_) && parseXmlNode();
}

bool LoudhailerParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& LoudhailerParamXml::writeElement(TiXmlNode& parent, const LoudhailerParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "LoudhailerParam");
    frame::setInt(element, "CameraId", param.getCameraId());
    frame::setFlag(element, "LoudhailerEnableFlag", param.getLoudhailerEnableFlag());
    frame::setInt(element, "LoudhailerType", param.getLoudhailerType());
    frame::setInt(element, "Volume", param.getVolume());
    return element;
}

bool LoudhailerParamXml::readElement(const TiXmlElement& element, LoudhailerParam& param)
{
    param.setCameraId(frame::intOf(element, "CameraId", 0));
    param.setLoudhailerEnableFlag(frame::flagOf(element, "LoudhailerEnableFlag", false));
    param.setLoudhailerType(frame::intOf(element, "LoudhailerType", 0));
    param.setVolume(frame::intOf(element, "Volume", 0));
    return true;
}

bool LoudhailerParamXml::createDomainXmlNode(const LoudhailerParam& param, SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("CameraId", param.getCameraId());
    node->setProperty("LoudhailerEnableFlag", param.getLoudhailerEnableFlag());
    node->setProperty("LoudhailerType", param.getLoudhailerType());
    node->setProperty("Volume", param.getVolume());
    return true;
}

bool LoudhailerParamXml::createDomainXmlNode(const std::vector<LoudhailerParam>& params,
                                             SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const LoudhailerParam& param : params)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "LoudhailerParam");
        if (!createDomainXmlNode(param, item)) return false;
    }
    return true;
}

bool LoudhailerParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node, LoudhailerParam& param) const
{
    if (!node) return false;

    param.setCameraId(
        frame::intProperty(node, "CameraId", 0, "LoudhailerParamXml::parseDomainXmlNode get CameraId failed "));
    param.setLoudhailerEnableFlag(
        frame::flagProperty(node, "LoudhailerEnableFlag", false,
                            "LoudhailerParamXml::parseDomainXmlNode get LoudhailerEnableFlag failed "));
    param.setLoudhailerType(frame::intProperty(node, "LoudhailerType", 0,
                                               "LoudhailerParamXml::parseDomainXmlNode get LoudhailerType failed "));
    param.setVolume(frame::intProperty(node, "Volume", 0, "LoudhailerParamXml::parseDomainXmlNode get Volume failed "));
    return true;
}

bool LoudhailerParamXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                            std::vector<LoudhailerParam>& params) const
{
    if (!node) return false;

    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        LoudhailerParam param;
        if (!parseDomainXmlNode(frame::nodeOf(*item), param)) return false;
        params.push_back(param);
    }
    return true;
}

bool LoudhailerParamXml::createXmlString(const LoudhailerParam& param, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("LoudhailerParam");
    return createDomainXmlNode(param, node) && DomainXmlNode::toString(node, text);
}

bool LoudhailerParamXml::createXmlString(const std::vector<LoudhailerParam>& params, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("LoudhailerParamList");
    return createDomainXmlNode(params, node) && DomainXmlNode::toString(node, text);
}

bool LoudhailerParamXml::parseXmlString(const std::string& text, LoudhailerParam& param) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "LoudhailerParam", node) && parseDomainXmlNode(node, param);
}

bool LoudhailerParamXml::parseXmlString(const std::string& text, std::vector<LoudhailerParam>& params) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "LoudhailerParamList", node) && parseDomainXmlNode(node, params);
}
