#include "record/RecordSteps.h"

#include "core/Frame.h"
#include "domain/DataConverter.h"
#include "domain/TimeConverter.h"

#include <string>

namespace frame
{

void setTime(TiXmlElement& element, const char* name, unsigned long seconds)
{
    std::string text;
    TimeConverter().longToStr(seconds, text);
    setText(element, name, text);
}

unsigned long timeOf(const TiXmlElement& element, const char* name, unsigned long missing)
{
    const char* text = attributeOf(element, name);
    if (text == nullptr) return missing;
    unsigned long seconds = 0;
    TimeConverter().strToLong(text, seconds);
    return seconds;
}

bool takeInt(const SafePointer<DomainXmlNode>& node, const char* name, int missing, int& value)
{
    std::string text;
    value = missing;
    return !node->getProperty(name, text) || DataConverter::convert(text, value);
}

bool takeFlag(const SafePointer<DomainXmlNode>& node, const char* name, bool missing, bool& value)
{
    std::string text;
    value = missing;
    return !node->getProperty(name, text) || DataConverter::convert(text, value);
}

} // namespace frame
