#pragma once

#include <charconv>
#include <cstdlib>
#include <cstring>
#include <string>
#include <tinyxml.h>

/// The steps of reading and writing by hand on bare TinyXML, which is what the library is measured against.
namespace bare
{

inline TiXmlElement& appendElement(TiXmlNode& parent, const char* name)
{
    TiXmlElement* element = new TiXmlElement(name);
    parent.LinkEndChild(element);
    return *element;
}

inline void setFlag(TiXmlElement& element, const char* name, bool value)
{
    element.SetAttribute(name, value ? "true" : "false");
}

inline std::string print(const TiXmlDocument& document)
{
    TiXmlPrinter printer;
    printer.SetIndent("\t");
    document.Accept(&printer);
    return printer.Str();
}

/// For the numbers of which TinyXML has no `SetAttribute`, or another text: a float is its shortest one.
template <class Number>
void setNumber(TiXmlElement& element, const char* name, Number value)
{
    char text[32];
    *std::to_chars(text, text + sizeof(text) - 1, value).ptr = '\0';
    element.SetAttribute(name, text);
}

/// The element named @p root of @p text, in @p document; null without it.
inline const TiXmlElement* parse(TiXmlDocument& document, const std::string& text, const char* root)
{
    document.Parse(text.c_str());
    return document.Error() ? nullptr : document.FirstChildElement(root);
}

/// The first element named @p item below the child of @p parent named @p container; null without either.
inline const TiXmlElement* firstItem(const TiXmlElement& parent, const char* container, const char* item)
{
    const TiXmlElement* list = parent.FirstChildElement(container);
    return list != nullptr ? list->FirstChildElement(item) : nullptr;
}

inline int intOf(const TiXmlElement& element, const char* name, int missing)
{
    const char* text = element.Attribute(name);
    return text != nullptr ? static_cast<int>(std::strtol(text, nullptr, 10)) : missing;
}

inline long longOf(const TiXmlElement& element, const char* name, long missing)
{
    const char* text = element.Attribute(name);
    return text != nullptr ? std::strtol(text, nullptr, 10) : missing;
}

inline float floatOf(const TiXmlElement& element, const char* name, float missing)
{
    const char* text = element.Attribute(name);
    return text != nullptr ? std::strtof(text, nullptr) : missing;
}

inline bool flagOf(const TiXmlElement& element, const char* name)
{
    const char* text = element.Attribute(name);
    return text != nullptr && (std::strcmp(text, "true") == 0 || std::strcmp(text, "1") == 0);
}

inline const char* textOf(const TiXmlElement& element, const char* name)
{
    const char* text = element.Attribute(name);
    return text != nullptr ? text : "";
}

} // namespace bare
