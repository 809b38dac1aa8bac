// <ROIConfigureList>
//     <ROIConfigure StreamID="1">
//         <ROIInfoParam ... />
//         <ROIInfoParam ... />
//     </ROIConfigure>
// </ROIConfigureList>

#include "media/ROIConfigureXml.h"

#include "core/Frame.h"
#include "media/ROIInfoParamXml.h"

#include <utility>

ROIConfigureXml::ROIConfigureXml() = default;

ROIConfigureXml::~ROIConfigureXml() = default;

bool ROIConfigureXml::createDomainXmlNode(const std::vector<ROIConfigure>& streams,
                                          SafePointer<DomainXmlNode>& node) const
{
    if (!node) return false;

    const ROIInfoParamXml regionCodec;
    for (const ROIConfigure& stream : streams)
    {
        SafePointer<DomainXmlNode> item = frame::appendNode(node, "ROIConfigure");
        item->setProperty("StreamID", stream.getStreamID());

        for (const ROIInfoParam& region : stream.getROIInfoParamList())
        {
            SafePointer<DomainXmlNode> regionItem = frame::appendNode(item, "ROIInfoParam");
            if (!regionCodec.createDomainXmlNode(region, regionItem)) return false;
        }
    }
    return true;
}

bool ROIConfigureXml::parseDomainXmlNode(const SafePointer<DomainXmlNode>& node,
                                         std::vector<ROIConfigure>& streams) const
{
    if (!node) return false;

    const ROIInfoParamXml regionCodec;
    TiXmlElement* item = frame::firstChild(node);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        ROIConfigure stream;
        stream.setStreamID(frame::intOf(*item, "StreamID", 0));

        TiXmlElement* regionItem = item->FirstChildElement("ROIInfoParam");
        for (; regionItem != nullptr; regionItem = regionItem->NextSiblingElement("ROIInfoParam"))
        {
            ROIInfoParam region;
            if (!regionCodec.parseDomainXmlNode(frame::nodeOf(*regionItem), region)) return false;
            stream.getROIInfoParamList().push_back(std::move(region));
        }
        streams.push_back(std::move(stream));
    }
    return true;
}

bool ROIConfigureXml::createXmlString(const std::vector<ROIConfigure>& streams, std::string& text) const
{
    SafePointer<DomainXmlNode> node = frame::makeNode("ROIConfigureList");
    return createDomainXmlNode(streams, node) && DomainXmlNode::toString(node, text);
}

bool ROIConfigureXml::parseXmlString(const std::string& text, std::vector<ROIConfigure>& streams) const
{
    SafePointer<DomainXmlNode> node;
    return DomainXmlNode::parse(text, "ROIConfigureList", node) && parseDomainXmlNode(node, streams);
}
