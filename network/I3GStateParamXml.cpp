// <I3GStateParam ConnectState="2" Operator="Example Mobile" NetType="WCDMA" SignalQuality="71" SIMState="4" />

#include "network/I3GStateParamXml.h"

#include "core/Frame.h"

I3GStateParamXml::I3GStateParamXml() = default;

I3GStateParamXml::~I3GStateParamXml() = default;

void I3GStateParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool I3GStateParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool I3GStateParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "I3GStateParam", document_, node_) && parseXmlNode();
}

bool I3GStateParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& I3GStateParamXml::writeElement(TiXmlNode& parent, const I3GStateParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "I3GStateParam");
    frame::setInt(element, "ConnectState", param.getConnectState());
    frame::setText(element, "Operator", param.getOperator());
    frame::setText(element, "NetType", param.getNetType());
    frame::setInt(element, "SignalQuality", param.getSignalQuality());
    frame::setInt(element, "SIMState", param.getSIMState());
    return element;
}

bool I3GStateParamXml::readElement(const TiXmlElement& element, I3GStateParam& param)
{
    param.setConnectState(frame::intOf(element, "ConnectState", param.getConnectState()));
    param.setOperator(frame::textOf(element, "Operator", param.getOperator()));
    param.setNetType(frame::textOf(element, "NetType", param.getNetType()));
    param.setSignalQuality(frame::intOf(element, "SignalQuality", param.getSignalQuality()));
    param.setSIMState(frame::intOf(element, "SIMState", param.getSIMState()));
    return true;
}
