// <version>
//     <SVCStreamParam SourceStreamID="1" SVCStreamID="2" PFrameInterval="4" SVCStreamName="quarter" />
// </version>
//
// The root says nothing of streams: that is the peers' name for this list.

#include "media/SVCStreamParamXml.h"

#include "core/Frame.h"

#include <utility>

SVCStreamParamXml::SVCStreamParamXml() = default;

SVCStreamParamXml::~SVCStreamParamXml() = default;

void SVCStreamParamXml::createXmlNode()
{
    writeElement(document_, streams_);
}

bool SVCStreamParamXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool SVCStreamParamXml::parseXmlString()
{
    return frame::parseRoot(text_, "version", document_, node_) && parseXmlNode();
}

bool SVCStreamParamXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, streams_);
}

TiXmlElement& SVCStreamParamXml::writeElement(TiXmlNode& parent, const std::vector<SVCStreamParam>& streams)
{
    TiXmlElement& element = frame::appendElement(parent, "version");
    for (const SVCStreamParam& stream : streams)
    {
        TiXmlElement& item = frame::appendElement(element, "SVCStreamParam");
        frame::setInt(item, "SourceStreamID", stream.getSourceStreamID());
        frame::setInt(item, "SVCStreamID", stream.getSVCStreamID());
        frame::setInt(item, "PFrameInterval", stream.getFrameSkipInterval());
        frame::setText(item, "SVCStreamName", stream.getSVCStreamName());
    }
    return element;
}

bool SVCStreamParamXml::readElement(const TiXmlElement& element, std::vector<SVCStreamParam>& streams)
{
    const TiXmlElement* item = frame::firstItem(element, "SVCStreamParam");
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        SVCStreamParam stream;
        stream.setSourceStreamID(frame::intOf(*item, "SourceStreamID", stream.getSourceStreamID()));
        stream.setSVCStreamID(frame::intOf(*item, "SVCStreamID", stream.getSVCStreamID()));
        stream.setFrameSkipInterval(frame::intOf(*item, "PFrameInterval", stream.getFrameSkipInterval()));
        stream.setSVCStreamName(frame::textOf(*item, "SVCStreamName", stream.getSVCStreamName()));
        streams.push_back(std::move(stream));
    }
    return true;
}
