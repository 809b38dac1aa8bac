// <OriginalYUV support="true" resolutionId="6" Width="1920" Height="1080" frameRate="25" VideoType="1" />
//
// Peers set "resolutionId" again behind "Height", to the same value: it stands once, in its first place.

#include "media/OriginalYUVConfigureXml.h"

#include "core/Frame.h"

OriginalYUVConfigureXml::OriginalYUVConfigureXml() = default;

OriginalYUVConfigureXml::~OriginalYUVConfigureXml() = default;

bool OriginalYUVConfigureXml::createDomainXmlNode(const OriginalYUVConfigure& output,
                                                  SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("support", output.getSupportFlag());
    node->setProperty("resolutionId", output.getYUVResolutionId());
    node->setProperty("Width", output.getVideoWidth());
    node->setProperty("Height", output.getVideoHeight());
    node->setProperty("frameRate", output.getYUVFrameRate());
    node->setProperty("VideoType", output.getYUVVideoType());
    return true;
}

bool OriginalYUVConfigureXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                                 OriginalYUVConfigure& output) const
{
    if (!node) return false;

    output.setSupportFlag(frame::flagProperty(node, "support", output.getSupportFlag()));
    output.setYUVResolutionId(frame::intProperty(node, "resolutionId", output.getYUVResolutionId()));
    output.setVideoWidth(frame::intProperty(node, "Width", output.getVideoWidth()));
    output.setVideoHeight(frame::intProperty(node, "Height", output.getVideoHeight()));
    output.setYUVFrameRate(frame::intProperty(node, "frameRate", output.getYUVFrameRate()));
    output.setYUVVideoType(frame::intProperty(node, "VideoType", output.getYUVVideoType()));
    return true;
}

bool OriginalYUVConfigureXml::createXmlString(const OriginalYUVConfigure& output, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("OriginalYUV");
    return createDomainXmlNode(output, node) && DomainXmlNode::toString(node, text);
}

bool OriginalYUVConfigureXml::parseXmlString(const std::string& text, OriginalYUVConfigure& output) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "OriginalYUV", node) && parseDomainXmlNode(node, output);
}
