// <FTPParam FTPEnableFlag="true" FTPServerAddr="files.example.org" FTPUserName="recorder" ... IPProtoVer="4" />

#include "network/FTPParamXml.h"

#include "core/Frame.h"

FTPParamXml::FTPParamXml() = default;

FTPParamXml::~FTPParamXml() = default;

void FTPParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool FTPParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool FTPParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "FTPParam", document_, node_) && parseXmlNode();
}

bool FTPParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& FTPParamXml::writeElement(TiXmlNode& parent, const FTPParam& param)
{
    TiXmlElement& element = frame::appendElement(parent, "FTPParam");
    frame::setFlag(element, "FTPEnableFlag", param.getFTPEnableFlag());
    frame::setText(element, "FTPServerAddr", param.getFTPServerAddr());
    frame::setText(element, "FTPUserName", param.getFTPUserName());
    frame::setText(element, "FTPPassword", param.getFTPPassword());
    frame::setText(element, "FTPWorkPath", param.getFTPServerWorkPath());
    frame::setInt(element, "IPProtoVer", param.getIPProtoVer());
    return element;
}

bool FTPParamXml::readElement(const TiXmlElement& element, FTPParam& param)
{
    param.setFTPEnableFlag(frame::flagOf(element, "FTPEnableFlag", false));
    param.setFTPServerAddr(frame::textOf(element, "FTPServerAddr", ""));
    param.setFTPUserName(frame::textOf(element, "FTPUserName", ""));
    param.setFTPPassword(frame::textOf(element, "FTPPassword", ""));
    param.setFTPServerWorkPath(frame::textOf(element, "FTPWorkPath", ""));
    param.setIPProtoVer(frame::intOf(element, "IPProtoVer", 0));
    return true;
}
