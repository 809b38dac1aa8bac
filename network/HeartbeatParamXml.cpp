// <HeartbeatParam HeartbeatEnableFlag="true" HeartbeatServerIp="192.0.2.6" ... IPProtoVer="4" />

#include "network/HeartbeatParamXml.h"

#include "core/Frame.h"

HeartbeatParamXml::HeartbeatParamXml() = default;

HeartbeatParamXml::~HeartbeatParamXml() = default;

void HeartbeatParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool HeartbeatParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool HeartbeatParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "HeartbeatParam", document_, node_) && parseXmlNode();
}

bool HeartbeatParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& HeartbeatParamXml::writeElement(TiXmlNode& parent, const HeartbeatParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "HeartbeatParam");
    frame::setFlag(element, "HeartbeatEnableFlag", param.getHeartbeatEnableFlag());
    frame::setText(element, "HeartbeatServerIp", param.getHeartbeatServerIp());
    frame::setInt(element, "HeartbeatServerPort", param.getHeartbeatServerPort());
    frame::setInt(element, "HeartbeatInterval", param.getHeartbeatInterval());
    frame::setInt(element, "HeartbeatAckTimeout", param.getHeartbeatAckTimeout());
    frame::setInt(element, "HeartbeatTimeoutCount", param.getHeartbeatTimeoutCount());
    frame::setInt(element, "IPProtoVer", param.getIPProtoVer());
    return element;
}

bool HeartbeatParamXml::readElement(const TiXmlElement& element, HeartbeatParam& param)
{
    param.setHeartbeatEnableFlag(frame::flagOf(element, "HeartbeatEnableFlag", false));
    param.setHeartbeatServerIp(frame::textOf(element, "HeartbeatServerIp", ""));
    param.setHeartbeatServerPort(frame::uint16Of(element, "HeartbeatServerPort", 0));
    param.setHeartbeatInterval(frame::intOf(element, "HeartbeatInterval", 0));
    param.setHeartbeatAckTimeout(frame::intOf(element, "HeartbeatAckTimeout", 0));
    param.setHeartbeatTimeoutCount(frame::intOf(element, "HeartbeatTimeoutCount", 0));
    param.setIPProtoVer(frame::intOf(element, "IPProtoVer", 0));
    return true;
}
