// <RecordStreamRemoveCommand ManagerId="1" ConsumerId="2" />

#include "commands/RecordStreamRemoveXML.h"

#include "core/Frame.h"

RecordStreamRemoveXML::RecordStreamRemoveXML() = default;

RecordStreamRemoveXML::~RecordStreamRemoveXML() = default;

void RecordStreamRemoveXML::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "RecordStreamRemoveCommand");
    frame::setInt(element, "ManagerId", managerId_);
    frame::setInt(element, "ConsumerId", consumerId_);
}

bool RecordStreamRemoveXML::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordStreamRemoveXML::parseXmlString()
{
    return frame::parseRoot(text_, "RecordStreamRemoveCommand", document_, node_) && parseXmlNode();
}

bool RecordStreamRemoveXML::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    managerId_ = frame::intOf(*element, "ManagerId", managerId_);
    consumerId_ = frame::intOf(*element, "ConsumerId", consumerId_);
    return true;
}
