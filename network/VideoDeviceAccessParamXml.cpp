// <VideoDeviceAccessParamList>
//     <VideoDeviceAccessParam DeviceIp="192.0.2.31" DevicePort="30001" ... RouterMappingRTSPPort="40005" />
// </VideoDeviceAccessParamList>

#include "network/VideoDeviceAccessParamXml.h"

#include "core/Frame.h"

#include <utility>

namespace
{

void writeItem(TiXmlElement& list, const VideoDeviceAccessParam& param)
{
    TiXmlElement& element = frame::appendElement(list, "VideoDeviceAccessParam");
    frame::setText(element, "DeviceIp", param.getDeviceIP());
    frame::setInt(element, "DevicePort", param.getDevicePort());
    frame::setInt(element, "IPProtoVer", param.getIPProtoVer());
    frame::setInt(element, "DeviceType", param.getDeviceType());
    frame::setText(element, "DeviceId", param.getDeviceID());
    frame::setText(element, "DeviceName", param.getDeviceName());
    frame::setText(element, "UserName", param.getUserID());
    frame::setText(element, "PassWord", param.getPassword());
    // The one flag that the peers write as a number; readers take it as either.
    frame::setInt(element, "RouterMappingEnableFlag", param.getRouterMappingEnableFlag() ? 1 : 0);
    frame::setText(element, "RouterAddr", param.getRouterAddr());
    frame::setInt(element, "RouterMappingControlPort", param.getRouterMappingControlPort());
    frame::setInt(element, "RouterMappingTCPAVPort", param.getRouterMappingTCPAVPort());
    frame::setInt(element, "RouterMappingRTPPort", param.getRouterMappingRTPPort());
    frame::setInt(element, "RouterMappingRTCPPort", param.getRouterMappingRTCPPort());
    frame::setInt(element, "RouterMappingRTSPPort", param.getRouterMappingRTSPPort());
}

void readItem(const TiXmlElement& element, VideoDeviceAccessParam& param)
{
    param.setDeviceIP(frame::textOf(element, "DeviceIp", param.getDeviceIP()));
    param.setDevicePort(frame::uint16Of(element, "DevicePort", param.getDevicePort()));
    param.setIPProtoVer(frame::intOf(element, "IPProtoVer", param.getIPProtoVer()));
    param.setDeviceType(frame::intOf(element, "DeviceType", param.getDeviceType()));
    param.setDeviceID(frame::textOf(element, "DeviceId", param.getDeviceID()));
    param.setDeviceName(frame::textOf(element, "DeviceName", param.getDeviceName()));
    param.setUserID(frame::textOf(element, "UserName", param.getUserID()));
    param.setPassword(frame::textOf(element, "PassWord", param.getPassword()));
    param.setRouterMappingEnableFlag(
        frame::flagOf(element, "RouterMappingEnableFlag", param.getRouterMappingEnableFlag()));
    param.setRouterAddr(frame::textOf(element, "RouterAddr", param.getRouterAddr()));
    param.setRouterMappingControlPort(
        frame::uint16Of(element, "RouterMappingControlPort", param.getRouterMappingControlPort()));
    param.setRouterMappingTCPAVPort(
        frame::uint16Of(element, "RouterMappingTCPAVPort", param.getRouterMappingTCPAVPort()));
    param.setRouterMappingRTPPort(frame::uint16Of(element, "RouterMappingRTPPort", param.getRouterMappingRTPPort()));
    param.setRouterMappingRTCPPort(frame::uint16Of(element, "RouterMappingRTCPPort", param.getRouterMappingRTCPPort()));
    param.setRouterMappingRTSPPort(frame::uint16Of(element, "RouterMappingRTSPPort", param.getRouterMappingRTSPPort()));
}

} // namespace

VideoDeviceAccessParamXml::VideoDeviceAccessParamXml() = default;

VideoDeviceAccessParamXml::~VideoDeviceAccessParamXml() = default;

void VideoDeviceAccessParamXml::createXmlNode()
{
    writeElement(document_, params_);
}

bool VideoDeviceAccessParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoDeviceAccessParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoDeviceAccessParamList", document_, node_) && parseXmlNode();
}

bool VideoDeviceAccessParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, params_);
}

TiXmlElement& VideoDeviceAccessParamXml::writeElement(TiXmlNode& parent,
                                                      const std::vector<VideoDeviceAccessParam>& params)
{
    TiXmlElement& element = frame::appendElement(parent, "VideoDeviceAccessParamList");
    for (const VideoDeviceAccessParam& param : params)
        writeItem(element, param);
    return element;
}

bool VideoDeviceAccessParamXml::readElement(const TiXmlElement& element, std::vector<VideoDeviceAccessParam>& params)
{
    const TiXmlElement* item = frame::firstItem(element, "VideoDeviceAccessParam");
    for (; item != nullptr; item = item->NextSiblingElement("VideoDeviceAccessParam"))
    {
        VideoDeviceAccessParam param;
        readItem(*item, param);
        params.push_back(std::move(param));
    }
    return true;
}
