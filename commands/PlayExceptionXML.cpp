// <PlayExceptionList>
//     <PlayException ConsumerId="1" ErrorNO="2" />
// </PlayExceptionList>

#include "commands/PlayExceptionXML.h"

#include "core/Conversions.h"
#include "core/Frame.h"

namespace
{

constexpr char listName[] = "PlayExceptionList";
constexpr char itemName[] = "PlayException";
constexpr char consumerIdName[] = "ConsumerId";
constexpr char errorName[] = "ErrorNO";

} // namespace

PlayExceptionXML::PlayExceptionXML() = default;

PlayExceptionXML::~PlayExceptionXML() = default;

void PlayExceptionXML::createXmlNode()
{
    writeElement(document_, exceptions_);
}

bool PlayExceptionXML::createXmlString()
{
    createXmlNode();
    frame::print(document_, text_);
    return true;
}

bool PlayExceptionXML::parseXmlString()
{
    return frame::parseRoot(text_, listName, document_, node_) && parseXmlNode();
}

bool PlayExceptionXML::parseXmlNode()
{
    const TiXmlElement* element = frame::elementOf(node_);
    return element != nullptr && readElement(*element, exceptions_);
}

TiXmlElement& PlayExceptionXML::writeElement(TiXmlNode& parent, const std::vector<PlayException>& exceptions)
{
    TiXmlElement& element = frame::appendElement(parent, listName);
    for (const PlayException& exception : exceptions)
    {
        TiXmlElement& item = frame::appendElement(element, itemName);
        frame::setInt(item, consumerIdName, exception.consumerId);
        frame::setInt(item, errorName, exception.errorNO);
    }
    return element;
}

bool PlayExceptionXML::readElement(const TiXmlElement& element, std::vector<PlayException>& exceptions)
{
    const TiXmlElement* item = frame::firstItem(element, itemName);
    for (; item != nullptr; item = item->NextSiblingElement())
    {
        PlayException exception;
        exception.consumerId = frame::intOf(*item, consumerIdName, 0);
        exception.errorNO = frame::intOf(*item, errorName, 0);
        exceptions.push_back(exception);
    }
    return true;
}

bool PlayExceptionXML::Int642Str(const long long& value, std::string& text) const
{
    text = frame::integerText(value).characters;
    return true;
}

bool PlayExceptionXML::str2Int64(const std::string& text, long long& value) const
{
    value = frame::wholeNumberIn(text.c_str());
    return true;
}
