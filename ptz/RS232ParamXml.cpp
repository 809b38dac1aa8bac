// <RS232Param ComId="1" Function="0" BaudRate="115200" DataBits="8" StopBits="1" Parity="0" />

#include "ptz/RS232ParamXml.h"

#include "core/Frame.h"

RS232ParamXml::RS232ParamXml() = default;

RS232ParamXml::~RS232ParamXml() = default;

void RS232ParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool RS232ParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RS232ParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "RS232Param", document_, node_) && parseXmlNode();
}

bool RS232ParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& RS232ParamXml::writeElement(TiXmlNode& parent, const RS232Param& param)
{
    TiXmlElement& element = frame::appendElement(parent, "RS232Param");
    frame::setInt(element, "ComId", param.getComId());
    frame::setInt(element, "Function", param.getFunction());
    frame::setInt(element, "BaudRate", param.getBaudRate());
    frame::setInt(element, "DataBits", param.getDataBits());
    frame::setInt(element, "StopBits", param.getStopBits());
    frame::setInt(element, "Parity", param.getParity());
    return element;
}

bool RS232ParamXml::readElement(const TiXmlElement& element, RS232Param& param)
{
    param.setComId(frame::intOf(element, "ComId", 0));
    param.setFunction(frame::intOf(element, "Function", 0));
    param.setBaudRate(frame::intOf(element, "BaudRate", 0));
    param.setDataBits(frame::intOf(element, "DataBits", 0));
    param.setStopBits(frame::intOf(element, "StopBits", 0));
    param.setParity(frame::intOf(element, "Parity", 0));
    return true;
}
