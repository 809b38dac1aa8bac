// <CMSProtocolParam ProtocolName="CMS" ProtocolVersion="2.0" ProtocolSoftwareVersion="2.0.17" />

#include "network/CMSProtocolParamXml.h"

#include "core/Frame.h"

CMSProtocolParamXml::CMSProtocolParamXml() = default;

CMSProtocolParamXml::~CMSProtocolParamXml() = default;

void CMSProtocolParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool CMSProtocolParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool CMSProtocolParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "CMSProtocolParam", document_, node_) && parseXmlNode();
}

bool CMSProtocolParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& CMSProtocolParamXml::writeElement(TiXmlNode& parent, const CMSProtocolParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "CMSProtocolParam");
    frame::setText(element, "ProtocolName", param.getProtocolName());
    frame::setText(element, "ProtocolVersion", param.getProtocolVersion());
    frame::setText(element, "ProtocolSoftwareVersion", param.getProtocolSoftwareVersion());
    return element;
}

bool CMSProtocolParamXml::readElement(const TiXmlElement& element, CMSProtocolParam& param)
{
    param.setProtocolName(frame::textOf(element, "ProtocolName", param.getProtocolName()));
    param.setProtocolVersion(frame::textOf(element, "ProtocolVersion", param.getProtocolVersion()));
    param.setProtocolSoftwareVersion(
        frame::textOf(element, "ProtocolSoftwareVersion", param.getProtocolSoftwareVersion()));
    return true;
}
