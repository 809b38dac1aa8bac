// <RecordStreamCloseCommand ManagerId="1" />

#include "commands/RecordStreamCloseXml.h"

#include "core/Frame.h"

RecordStreamCloseXml::RecordStreamCloseXml() = default;

RecordStreamCloseXml::~RecordStreamCloseXml() = default;

void RecordStreamCloseXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "RecordStreamCloseCommand");
    frame::setInt(element, "ManagerId", managerId_);
}

bool RecordStreamCloseXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordStreamCloseXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordStreamCloseCommand", document_, node_) && parseXmlNode();
}

bool RecordStreamCloseXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    managerId_ = frame::intOf(*element, "ManagerId", managerId_);
    return true;
}
