// <VideoInfo BitRate="2097152" BitErrorRate="0" TimePerFrame="40" Size="40" Width="1920" Height="1080" Planes="1"
//            BitCount="24" Compression="875967048" SizeImage="6220800" XPelsPerMeter="0" YPelsPerMeter="0" ClrUsed="0"
//            ClrImportant="0" SPS_PPSData="Z0IAKeKQ" SPS_PPSDataLen="8" />

#include "commands/VideoInfoXml.h"

#include "core/Frame.h"

VideoInfoXml::VideoInfoXml() = default;

VideoInfoXml::~VideoInfoXml() = default;

void VideoInfoXml::createXmlNode()
{
    writeElement(document_, info_);
}

bool VideoInfoXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool VideoInfoXml::parseXmlString()
{
    return frame::parseRoot(text_, "VideoInfo", document_, node_) && parseXmlNode();
}

bool VideoInfoXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, info_);
}

TiXmlElement& VideoInfoXml::writeElement(TiXmlNode& parent, const VideoInfo& info)
{
    TiXmlElement& element = frame::appendElement(parent, "VideoInfo");
    frame::setUnsigned(element, "BitRate", info.getBitRate());
    frame::setUnsigned(element, "BitErrorRate", info.getBitErrorRate());
    frame::setUnsigned(element, "TimePerFrame", info.getTimePerFrame());
    frame::setUnsigned(element, "Size", info.getSize());
    frame::setUnsigned(element, "Width", info.getWidth());
    frame::setUnsigned(element, "Height", info.getHeight());
    frame::setInt(element, "Planes", info.getPlanes());
    frame::setInt(element, "BitCount", info.getBitCount());
    frame::setUnsigned(element, "Compression", info.getCompression());
    frame::setUnsigned(element, "SizeImage", info.getSizeImage());
    frame::setInt(element, "XPelsPerMeter", info.getXPelsPerMeter());
    frame::setInt(element, "YPelsPerMeter", info.getYPelsPerMeter());
    frame::setUnsigned(element, "ClrUsed", info.getClrUsed());
    frame::setUnsigned(element, "ClrImportant", info.getClrImportant());
    frame::setText(element, "SPS_PPSData", info.getSPS_PPSData());
    frame::setInt(element, "SPS_PPSDataLen", info.getSPS_PPSDataLen());
    return element;
}

bool VideoInfoXml::readElement(const TiXmlElement& element, VideoInfo& info)
{
    info.setBitRate(frame::uint32Of(element, "BitRate", 0));
    info.setBitErrorRate(frame::uint32Of(element, "BitErrorRate", 0));
    info.setTimePerFrame(frame::uint32Of(element, "TimePerFrame", 0));
    info.setSize(frame::uint32Of(element, "Size", 0));
    info.setWidth(frame::uint32Of(element, "Width", 0));
    info.setHeight(frame::uint32Of(element, "Height", 0));
    info.setPlanes(frame::uint16Of(element, "Planes", 0));
    info.setBitCount(frame::uint16Of(element, "BitCount", 0));
    info.setCompression(frame::uint32Of(element, "Compression", 0));
    info.setSizeImage(frame::uint32Of(element, "SizeImage", 0));
    info.setXPelsPerMeter(frame::intOf(element, "XPelsPerMeter", 0));
    info.setYPelsPerMeter(frame::intOf(element, "YPelsPerMeter", 0));
    info.setClrUsed(frame::uint32Of(element, "ClrUsed", 0));
    info.setClrImportant(frame::uint32Of(element, "ClrImportant", 0));

    // A length beyond the text is cut to it.
    const int length = frame::intOf(element, "SPS_PPSDataLen", 0);
    info.setSPS_PPSData(frame::textOf(element, "SPS_PPSData", "").c_str(), length);
    return true;
}
