// <RegisterAlarmServerParam ServerIP="192.0.2.8" ServerPort="7000" IPProtoVer="4" />

#include "network/RegisterAlarmServerParamXml.h"

#include "core/Frame.h"

RegisterAlarmServerParamXml::RegisterAlarmServerParamXml() = default;

RegisterAlarmServerParamXml::~RegisterAlarmServerParamXml() = default;

void RegisterAlarmServerParamXml::createXmlNode()
{
    writeElement(document_, addr_);
}

bool RegisterAlarmServerParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RegisterAlarmServerParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "RegisterAlarmServerParam", document_, node_) && parseXmlNode();
}

bool RegisterAlarmServerParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, addr_);
}

TiXmlElement& RegisterAlarmServerParamXml::writeElement(TiXmlNode& parent, const InetAddr& addr)
{
    TiXmlElement& element = frame::appendElement(parent, "RegisterAlarmServerParam");
    frame::setText(element, "ServerIP", addr.getIP());
    frame::setInt(element, "ServerPort", addr.getPORT());
    frame::setInt(element, "IPProtoVer", addr.getIPProtoVer());
    return element;
}

bool RegisterAlarmServerParamXml::readElement(const TiXmlElement& element, InetAddr& addr)
{
    addr.setIP(frame::textOf(element, "ServerIP", addr.getIP()).c_str());
    addr.setPORT(frame::uint16Of(element, "ServerPort", 0));
    addr.setIPProtoVer(frame::intOf(element, "IPProtoVer", 1));
    return true;
}
