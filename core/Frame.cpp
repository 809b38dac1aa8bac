#include "core/Frame.h"

#include "core/Conversions.h"
#include "core/TextGuard.h"
#include "core/XmlPrinter.h"

#include <cstdio>
#include <cstring>

namespace frame
{

namespace
{

/// The property's text; null, after printing @p line if there is one, where it is missing.
const char* propertyOf(const SafePointer<DomainXmlNode>& node, const char* name, const char* line)
{
    const TiXmlElement* element = node->getXmlNode();
    const char* text = element != nullptr ? attributeOf(*element, name) : nullptr;
    if (text == nullptr && line != nullptr) std::puts(line);
    return text;
}

} // namespace

bool parse(TiXmlDocument& document, const std::string& text)
{
    // TinyXML skips the whole length of a UTF-8 character whose last bytes are cut off, past the text's end.
    static constexpr std::size_t longestSkip = 3;

    std::string padded;
    const char* characters = text.c_str();
    if (endsInsideCharacter(characters))
    {
        padded.assign(characters).append(longestSkip, '\0');
        characters = padded.c_str();
    }

    if (!withinLimits(characters, maximumDepth, maximumAttributes))
    {
        document.SetError(TiXmlBase::TIXML_ERROR_PARSING_ELEMENT, nullptr, nullptr, TIXML_ENCODING_UNKNOWN);
        return false;
    }
    document.SetTabSize(0); // nobody asks for rows and columns
    document.Parse(characters, nullptr, TIXML_ENCODING_UNKNOWN);
    return !document.Error();
}

bool parseRoot(const std::string& text, const char* root, TiXmlDocument& document, TiXmlNode*& node)
{
    TiXmlElement* element = parse(document, text) ? document.FirstChildElement(root) : nullptr;
    if (element == nullptr) return false;
    node = element;
    return true;
}

void print(const TiXmlNode& node, std::string& text)
{
    text.clear();
    XmlPrinter printer(text);
    node.Accept(&printer);
    printer.flush();
}

const TiXmlElement* elementOf(const TiXmlNode* node)
{
    return node != nullptr ? node->ToElement() : nullptr;
}

TiXmlElement& appendElement(TiXmlNode& parent, const char* name)
{
    TiXmlElement* element = new TiXmlElement(name);
    parent.LinkEndChild(element);
    return *element;
}

void setInt(TiXmlElement& element, const char* name, int value)
{
    setInt64(element, name, value);
}

void setInt64(TiXmlElement& element, const char* name, long long value)
{
    element.SetAttribute(name, integerText(value).characters);
}

void setUnsigned(TiXmlElement& element, const char* name, unsigned long long value)
{
    element.SetAttribute(name, unsignedText(value).characters);
}

void setFloat(TiXmlElement& element, const char* name, float value)
{
    element.SetAttribute(name, floatText(value).characters);
}

void setDouble(TiXmlElement& element, const char* name, double value)
{
    element.SetAttribute(name, doubleText(value).characters);
}

void setFlag(TiXmlElement& element, const char* name, bool value)
{
    element.SetAttribute(name, flagText(value));
}

void setText(TiXmlElement& element, const char* name, const std::string& value)
{
    // The overload for strings copies the name on every call; only a value with a zero inside needs it.
    if (std::strlen(value.c_str()) == value.size())
        element.SetAttribute(name, value.c_str());
    else
        element.SetAttribute(std::string(name), value);
}

const char* attributeOf(const TiXmlElement& element, const char* name)
{
    // TinyXML's own search compares whole names; most differ in their length already.
    const std::size_t length = std::strlen(name);
    for (const TiXmlAttribute* attribute = element.FirstAttribute(); attribute != nullptr;
         attribute = attribute->Next())
    {
        const std::string& candidate = attribute->NameTStr();
        if (candidate.size() == length && std::memcmp(candidate.data(), name, length) == 0) return attribute->Value();
    }
    return nullptr;
}

int intOf(const TiXmlElement& element, const char* name, int missing)
{
    return static_cast<int>(int64Of(element, name, missing));
}

std::uint16_t uint16Of(const TiXmlElement& element, const char* name, std::uint16_t missing)
{
    return static_cast<std::uint16_t>(int64Of(element, name, missing));
}

std::uint32_t uint32Of(const TiXmlElement& element, const char* name, std::uint32_t missing)
{
    return static_cast<std::uint32_t>(int64Of(element, name, missing));
}

long longOf(const TiXmlElement& element, const char* name, long missing)
{
    return static_cast<long>(int64Of(element, name, missing));
}

unsigned long unsignedLongOf(const TiXmlElement& element, const char* name, unsigned long missing)
{
    return static_cast<unsigned long>(unsignedOf(element, name, missing));
}

long long int64Of(const TiXmlElement& element, const char* name, long long missing)
{
    const char* text = attributeOf(element, name);
    return text != nullptr ? integerIn(text) : missing;
}

unsigned long long unsignedOf(const TiXmlElement& element, const char* name, unsigned long long missing)
{
    const char* text = attributeOf(element, name);
    return text != nullptr ? unsignedIn(text) : missing;
}

float floatOf(const TiXmlElement& element, const char* name, float missing)
{
    const char* text = attributeOf(element, name);
    return text != nullptr ? floatIn(text) : missing;
}

double doubleOf(const TiXmlElement& element, const char* name, double missing)
{
    const char* text = attributeOf(element, name);
    return text != nullptr ? doubleIn(text) : missing;
}

bool flagOf(const TiXmlElement& element, const char* name, bool missing)
{
    const char* text = attributeOf(element, name);
    return text != nullptr ? flagIn(text) : missing;
}

std::string textOf(const TiXmlElement& element, const char* name, const char* missing)
{
    const char* text = attributeOf(element, name);
    return text != nullptr ? text : missing;
}

std::string textOf(const TiXmlElement& element, const char* name, const std::string& missing)
{
    const char* text = attributeOf(element, name);
    return text != nullptr ? text : missing;
}

long long wholeNumberOf(const TiXmlElement& element, const char* name, long long missing)
{
    const char* text = attributeOf(element, name);
    return text != nullptr ? wholeNumberIn(text) : missing;
}

int queriedIntOf(const TiXmlElement& element, const char* name, int missing)
{
    const char* text = attributeOf(element, name);
    long long value = missing;
    if (text != nullptr) readInteger(text, value);
    return static_cast<int>(value);
}

const TiXmlElement* firstItem(const TiXmlElement& list, const char* item)
{
    return list.FirstChildElement(item);
}

const TiXmlElement* firstItem(const TiXmlElement& parent, const char* container, const char* item)
{
    const TiXmlElement* list = parent.FirstChildElement(container);
    return list != nullptr ? list->FirstChildElement(item) : nullptr;
}

SafePointer<DomainXmlNode> makeNode(const char* name)
{
    return SafePointer<DomainXmlNode>(new DomainXmlNode(name));
}

SafePointer<DomainXmlNode> nodeOf(TiXmlElement& element)
{
    return SafePointer<DomainXmlNode>(new DomainXmlNode(&element));
}

TiXmlElement* firstChild(const SafePointer<DomainXmlNode>& node)
{
    TiXmlElement* element = node->getXmlNode();
    return element != nullptr ? element->FirstChildElement() : nullptr;
}

SafePointer<DomainXmlNode> appendNode(SafePointer<DomainXmlNode>& parent, const char* name)
{
    TiXmlElement* element = parent->getXmlNode();
    return SafePointer<DomainXmlNode>(new DomainXmlNode(element != nullptr ? &appendElement(*element, name) : nullptr));
}

int intProperty(const SafePointer<DomainXmlNode>& node, const char* name, int missing, const char* line)
{
    const char* text = propertyOf(node, name, line);
    return text != nullptr ? static_cast<int>(integerIn(text)) : missing;
}

std::uint16_t uint16Property(const SafePointer<DomainXmlNode>& node, const char* name, std::uint16_t missing,
                             const char* line)
{
    return static_cast<std::uint16_t>(intProperty(node, name, missing, line));
}

std::uint32_t uint32Property(const SafePointer<DomainXmlNode>& node, const char* name, std::uint32_t missing,
                             const char* line)
{
    const char* text = propertyOf(node, name, line);
    return text != nullptr ? static_cast<std::uint32_t>(integerIn(text)) : missing;
}

unsigned long long unsignedProperty(const SafePointer<DomainXmlNode>& node, const char* name,
                                    unsigned long long missing, const char* line)
{
    const char* text = propertyOf(node, name, line);
    return text != nullptr ? unsignedIn(text) : missing;
}

float floatProperty(const SafePointer<DomainXmlNode>& node, const char* name, float missing, const char* line)
{
    const char* text = propertyOf(node, name, line);
    return text != nullptr ? floatIn(text) : missing;
}

double doubleProperty(const SafePointer<DomainXmlNode>& node, const char* name, double missing, const char* line)
{
    const char* text = propertyOf(node, name, line);
    return text != nullptr ? doubleIn(text) : missing;
}

bool flagProperty(const SafePointer<DomainXmlNode>& node, const char* name, bool missing, const char* line)
{
    const char* text = propertyOf(node, name, line);
    return text != nullptr ? flagIn(text) : missing;
}

std::string textProperty(const SafePointer<DomainXmlNode>& node, const char* name, const std::string& missing,
                         const char* line)
{
    const char* text = propertyOf(node, name, line);
    return text != nullptr ? text : missing;
}

} // namespace frame
