#include "device/AbilitySteps.h"

#include "core/Frame.h"

namespace frame
{

void appendInt(TiXmlElement& parent, const char* child, const char* name, int value)
{
    setInt(appendElement(parent, child), name, value);
}

void appendFlag(TiXmlElement& parent, const char* child, const char* name, bool value)
{
    setFlag(appendElement(parent, child), name, value);
}

int childIntOf(const TiXmlElement& parent, const char* child, const char* name, int missing)
{
    const TiXmlElement* element = parent.FirstChildElement(child);
    return element != nullptr ? intOf(*element, name, missing) : missing;
}

bool childFlagOf(const TiXmlElement& parent, const char* child, const char* name, bool missing)
{
    const TiXmlElement* element = parent.FirstChildElement(child);
    return element != nullptr ? flagOf(*element, name, missing) : missing;
}

void appendInts(TiXmlElement& parent, const char* container, const char* item, const char* name,
                const std::vector<int>& values)
{
    TiXmlElement& list = appendElement(parent, container);
    for (const int value : values)
        appendInt(list, item, name, value);
}

void readInts(const TiXmlElement& parent, const char* container, const char* item, const char* name,
              std::vector<int>& values)
{
    const TiXmlElement* element = firstItem(parent, container, item);
    for (; element != nullptr; element = element->NextSiblingElement())
        values.push_back(intOf(*element, name, 0));
}

} // namespace frame
