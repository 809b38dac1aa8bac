// <RecordStreamOpenCommand StreamType="1" />

#include "commands/RecordStreamOpenXml.h"

#include "core/Frame.h"

#include <cstdio>

RecordStreamOpenXml::RecordStreamOpenXml() = default;

RecordStreamOpenXml::~RecordStreamOpenXml() = default;

void RecordStreamOpenXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "RecordStreamOpenCommand");
    frame::setInt(element, "StreamType", streamType_);
}

bool RecordStreamOpenXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordStreamOpenXml::parseXmlString()
{
    if (!frame::parse(document_, text_))
    {
        std::puts("m_objRecordStreamOpenDoc.Error() 11111 ");
        return false;
    }
    TiXmlElement* root = document_.FirstChildElement("RecordStreamOpenCommand");
    if (root == nullptr)
    {
        std::puts("pobjRecordStreamOpenNode == NULL 2222222");
        return false;
    }
    node_ = root;
    return parseXmlNode();
}

bool RecordStreamOpenXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    streamType_ = frame::intOf(*element, "StreamType", streamType_);
    return true;
}
