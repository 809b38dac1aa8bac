// <DeviceSecurityParam>
//     <CommunicationSecurityParam WebMode="1" CommunicationEncryptFlag="true" />
// </DeviceSecurityParam>

#include "security/DeviceSecurityParamXml.h"

#include "core/Frame.h"

#include <cstdio>

DeviceSecurityParamXml::DeviceSecurityParamXml() = default;

DeviceSecurityParamXml::~DeviceSecurityParamXml() = default;

void DeviceSecurityParamXml::createXmlNode()
{
    writeElement(document_, param_);
}

bool DeviceSecurityParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool DeviceSecurityParamXml::parseXmlString()
{
    TiXmlNode* root = nullptr;
    if (!frame::parseRoot(text_, "DeviceSecurityParam", document_, root)) return false;

    // Callers that embed the document give parseXmlNode the child, and so does this.
    TiXmlNode* child = root->FirstChildElement("CommunicationSecurityParam");
    if (child == nullptr) return false;
    node_ = child;
    return parseXmlNode();
}

bool DeviceSecurityParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, param_);
}

TiXmlElement& DeviceSecurityParamXml::writeElement(TiXmlNode& parent, const DeviceSecurityParam& param)
{
    const CommunicationSecurityParam& communication = param.getCommunicationSecurityParam();

    TiXmlElement& element = frame::appendElement(parent, "DeviceSecurityParam");
    TiXmlElement& child = frame::appendElement(element, "CommunicationSecurityParam");
    frame::setInt(child, "WebMode", communication.getWebMode());
    frame::setFlag(child, "CommunicationEncryptFlag", communication.getCommunicationEncryptFlag());
    return element;
}

bool DeviceSecurityParamXml::readElement(const TiXmlElement& element, DeviceSecurityParam& param)
{
    CommunicationSecurityParam communication;
    communication.setWebMode(frame::intOf(element, "WebMode", 0));
    communication.setCommunicationEncryptFlag(frame::flagOf(element, "CommunicationEncryptFlag", false));
    param.setCommunicationSecurityParam(communication);

    std::printf("DeviceSecurityParamXml::parseXmlNode():Flag = %d, WebMode = %d \n",
                communication.getCommunicationEncryptFlag() ? 1 : 0, communication.getWebMode());
    return true;
}
