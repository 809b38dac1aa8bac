// <SnapshotParameter Quality="1" duration="2" ShootTimes="3" interval="4">
//     <VideoResolution ... />
// </SnapshotParameter>
//
// The peers write "Quality" as a signed number: 4294967295 goes out as -1, and comes back whole.

#include "snapshot/SnapshotParameterXml.h"

#include "core/Frame.h"
#include "device/VideoResolutionXml.h"

#include <utility>

SnapshotParameterXml::SnapshotParameterXml() = default;

SnapshotParameterXml::~SnapshotParameterXml() = default;

void SnapshotParameterXml::createXmlNode()
{
    writeElement(document_, parameter_);
}

bool SnapshotParameterXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SnapshotParameterXml::parseXmlString()
{
    return frame::parseRoot(text_, "SnapshotParameter", document_, node_) && parseXmlNode();
}

bool SnapshotParameterXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, parameter_);
}

TiXmlElement& SnapshotParameterXml::writeElement(TiXmlNode& parent, const SnapshotParameter& parameter)
{
    TiXmlElement& element = frame::appendElement(parent, "SnapshotParameter");
    frame::setInt(element, "Quality", static_cast<int>(parameter.getQuality()));
    frame::setInt(element, "duration", parameter.getDuration());
    frame::setInt(element, "ShootTimes", parameter.getShootTimes());
    frame::setInt(element, "interval", parameter.getInterval());

    VideoResolutionXml::writeElement(element, parameter.getVideoResolution());
    return element;
}

bool SnapshotParameterXml::readElement(const TiXmlElement& element, SnapshotParameter& parameter)
{
    parameter.setQuality(frame::uint32Of(element, "Quality", 0));
    parameter.setDuration(frame::intOf(element, "duration", 0));
    parameter.setShootTimes(frame::intOf(element, "ShootTimes", 0));
    parameter.setInterval(frame::intOf(element, "interval", 0));

    const TiXmlElement* child = element.FirstChildElement("VideoResolution");
    if (child != nullptr)
    {
        VideoResolution resolution;
        if (!VideoResolutionXml::readElement(*child, resolution)) return false;
        parameter.getVideoResolution() = std::move(resolution);
    }
    return true;
}

bool SnapshotParameterXml::createDomainXmlNode(const SnapshotParameter& parameter,
                                               SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    node->setProperty("Quality", static_cast<int>(parameter.getQuality()));
    node->setProperty("duration", parameter.getDuration());
    node->setProperty("ShootTimes", parameter.getShootTimes());
    node->setProperty("interval", parameter.getInterval());

    SafePointer<DomainXmlNode> resolution = frame::appendNode(node, "VideoResolution");
    return VideoResolutionXml().createDomainXmlNode(parameter.getVideoResolution(), resolution);
}

bool SnapshotParameterXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                              SnapshotParameter& parameter) const
{
    if (!node) return false;

    parameter.setQuality(frame::uint32Property(node, "Quality", 0));
    parameter.setDuration(frame::intProperty(node, "duration", 0));
    parameter.setShootTimes(frame::intProperty(node, "ShootTimes", 0));
    parameter.setInterval(frame::intProperty(node, "interval", 0));

    SafePointer<DomainXmlNode> resolutionNode;
    node->getConfigNode("VideoResolution", resolutionNode);
    VideoResolution resolution;
    VideoResolutionXml().parseDomainXmlNode(resolutionNode, resolution);
    parameter.getVideoResolution() = std::move(resolution);
    return true;
}

bool SnapshotParameterXml::createXmlString(const SnapshotParameter& parameter, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("SnapshotParameter");
    return createDomainXmlNode(parameter, node) && DomainXmlNode::toString(node, text);
}

bool SnapshotParameterXml::parseXmlString(const std::string& text, SnapshotParameter& parameter) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "SnapshotParameter", node) && parseDomainXmlNode(node, parameter);
}
