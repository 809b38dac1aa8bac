// <UpdateParam UpdateEnableFlag="true" UpdateServerIP="192.0.2.7" UpdateServerPort="30006" ... IPProtoVer="4" />

#include "network/UpdateParamXml.h"

#include "core/Frame.h"

UpdateParamXml::UpdateParamXml() = default;

UpdateParamXml::~UpdateParamXml() = default;

void UpdateParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool UpdateParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool UpdateParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "UpdateParam", document_, node_) && parseXmlNode();
}

bool UpdateParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& UpdateParamXml::writeElement(TiXmlNode& parent, const UpdateParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "UpdateParam");
    frame::setFlag(element, "UpdateEnableFlag", param.getUpdateEnableFlag());
    frame::setText(element, "UpdateServerIP", param.getUpdateServerIP());
    frame::setInt(element, "UpdateServerPort", param.getUpdateServerPort());
    frame::setInt(element, "UpdatePeriod", param.getUpdatePeriod());
    frame::setInt(element, "IPProtoVer", param.getIPProtoVer());
    return element;
}

bool UpdateParamXml::readElement(const TiXmlElement& element, UpdateParam& param)
{
    param.setUpdateEnableFlag(frame::flagOf(element, "UpdateEnableFlag", false));
    param.setUpdateServerIP(frame::textOf(element, "UpdateServerIP", ""));
    param.setUpdateServerPort(frame::uint16Of(element, "UpdateServerPort", 0));
    param.setUpdatePeriod(frame::intOf(element, "UpdatePeriod", 0));
    param.setIPProtoVer(frame::intOf(element, "IPProtoVer", 0));
    return true;
}
