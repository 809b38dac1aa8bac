// <RecordStreamCtrlCommand CtrlType="1" ManagerId="2" Paramer1="3" Paramer2="4">
//     <PlayExceptionList>
//         <PlayException ConsumerId="1" ErrorNO="2" />
//     </PlayExceptionList>
// </RecordStreamCtrlCommand>

#include "commands/RecordStreamCtrlXml.h"

#include "commands/PlayExceptionXML.h"
#include "core/Conversions.h"
#include "core/Frame.h"

#include <utility>

RecordStreamCtrlXml::RecordStreamCtrlXml() = default;

RecordStreamCtrlXml::~RecordStreamCtrlXml() = default;

void RecordStreamCtrlXml::createXmlNode()
{
    TiXmlElement& element = frame::appendElement(document_, "RecordStreamCtrlCommand");
    frame::setInt(element, "CtrlType", ctrlType_);
    frame::setInt(element, "ManagerId", managerId_);
    // The peers write the parameters as numbers of 32 bits and read them as text, whose value goes through a double.
    frame::setInt(element, "Paramer1", static_cast<int>(paramer1_));
    frame::setInt(element, "Paramer2", static_cast<int>(paramer2_));

    PlayExceptionXML::writeElement(element, playExceptionList_);
}

bool RecordStreamCtrlXml::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool RecordStreamCtrlXml::parseXmlString()
{
    return frame::parseRoot(text_, "RecordStreamCtrlCommand", document_, node_) && parseXmlNode();
}

bool RecordStreamCtrlXml::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    if (element == nullptr) return false;

    ctrlType_ = frame::intOf(*element, "CtrlType", ctrlType_);
    managerId_ = frame::intOf(*element, "ManagerId", managerId_);
    paramer1_ = frame::wholeNumberOf(*element, "Paramer1", paramer1_);
    paramer2_ = frame::wholeNumberOf(*element, "Paramer2", paramer2_);

    const TiXmlElement* list = element->FirstChildElement("PlayExceptionList");
    if (list != nullptr)
    {
        std::vector<PlayException> exceptions;
        if (!PlayExceptionXML::readElement(*list, exceptions)) return false;
        playExceptionList_ = std::move(exceptions);
    }
    return true;
}

bool RecordStreamCtrlXml::Int642Str(const long long& value, std::string& text) const
{
    text = frame::integerText(value).characters;
    return true;
}

bool RecordStreamCtrlXml::str2Int64(const std::string& text, long long& value) const
{
    value = frame::wholeNumberIn(text.c_str());
    return true;
}
