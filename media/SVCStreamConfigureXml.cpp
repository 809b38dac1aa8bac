// <SVCStreamConfigureList>
//     <SVCStreamConfigure SVCStreamId="1" SVCStreamName="half" SourceStream="2" Divisor="2" />
// </SVCStreamConfigureList>

#include "media/SVCStreamConfigureXml.h"

#include "core/Frame.h"

#include <utility>

SVCStreamConfigureXml::SVCStreamConfigureXml() = default;

SVCStreamConfigureXml::~SVCStreamConfigureXml() = default;

bool SVCStreamConfigureXml::createDomainXmlNode(const std::vector<SVCStreamConfigure>& streams,
                                                SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    for (const SVCStreamConfigure& stream : streams)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "SVCStreamConfigure");
        item->setProperty("SVCStreamId", stream.getSVCStreamId());
        item->setProperty("SVCStreamName", stream.getSVCStreamName());
        item->setProperty("SourceStream", stream.getSVCStreamSourceStream());
        item->setProperty("Divisor", stream.getSVCStreamDivisor());
    }
    return true;
}

bool SVCStreamConfigureXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                               std::vector<SVCStreamConfigure>& streams) const
{
    if (!node) return false;

    TiXmlElement* element = frame::firstChild(node);
    for (; element != nullptr; element = element->NextSiblingElement())
    {
        const SafePointer<DomainXmlNode> item = frame::nodeOf(*element);
        SVCStreamConfigure stream;
        stream.setSVCStreamId(frame::intProperty(item, "SVCStreamId", stream.getSVCStreamId()));
        stream.setSVCStreamName(frame::textProperty(item, "SVCStreamName", stream.getSVCStreamName()));
        stream.setSVCStreamSourceStream(frame::intProperty(item, "SourceStream", stream.getSVCStreamSourceStream()));
        stream.setSVCStreamDivisor(frame::intProperty(item, "Divisor", stream.getSVCStreamDivisor()));
        streams.push_back(std::move(stream));
    }
    return true;
}

bool SVCStreamConfigureXml::createXmlString(const std::vector<SVCStreamConfigure>& streams, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("SVCStreamConfigureList");
    return createDomainXmlNode(streams, node) && DomainXmlNode::toString(node, text);
}

bool SVCStreamConfigureXml::parseXmlString(const std::string& text, std::vector<SVCStreamConfigure>& streams) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "SVCStreamConfigureList", node) && parseDomainXmlNode(node, streams);
}
