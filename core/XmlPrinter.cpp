#include "core/XmlPrinter.h"

#include <algorithm>
#include <cstring>

namespace frame
{

namespace
{

struct EscapeTable
{
    bool needsEscape[256] = {};

    constexpr EscapeTable()
    {
        for (int control = 0; control < 32; ++control)
            needsEscape[control] = true;
        for (const char character : {'&', '<', '>', '"', '\''})
            needsEscape[static_cast<unsigned char>(character)] = true;
    }
};

constexpr EscapeTable escapes;

bool needsEscape(char character)
{
    return escapes.needsEscape[static_cast<unsigned char>(character)];
}

} // namespace

bool XmlPrinter::VisitEnter(const TiXmlElement& element, const TiXmlAttribute* attribute)
{
    indent();
    put('<');
    put(element.Value());
    for (; attribute != nullptr; attribute = attribute->Next())
    {
        const char quote = attribute->ValueStr().find('"') == std::string::npos ? '"' : '\'';
        put(' ');
        putEscaped(attribute->NameTStr());
        put('=');
        put(quote);
        putEscaped(attribute->ValueStr());
        put(quote);
    }

    const TiXmlNode* child = element.FirstChild();
    if (child == nullptr)
        put(" />\n");
    else
    {
        put('>');
        const bool onlyText = child == element.LastChild() && child->ToText() != nullptr && !child->ToText()->CDATA();
        if (onlyText)
            onOneLine_ = true;
        else
            put('\n');
    }
    ++depth_;
    return true;
}

bool XmlPrinter::VisitExit(const TiXmlElement& element)
{
    --depth_;
    if (element.FirstChild() == nullptr) return true;

    if (onOneLine_)
        onOneLine_ = false;
    else
        indent();
    put("</");
    put(element.Value());
    put(">\n");
    return true;
}

bool XmlPrinter::Visit(const TiXmlDeclaration& declaration)
{
    indent();
    flush();
    declaration.Print(nullptr, 0, &text_);
    put('\n');
    return true;
}

bool XmlPrinter::Visit(const TiXmlText& text)
{
    if (onOneLine_)
    {
        putEscaped(text.ValueTStr());
        return true;
    }

    indent();
    if (text.CDATA())
    {
        put("<![CDATA[");
        put(text.Value());
        put("]]>");
    }
    else
        putEscaped(text.ValueTStr());
    put('\n');
    return true;
}

bool XmlPrinter::Visit(const TiXmlComment& comment)
{
    indent();
    put("<!--");
    put(comment.Value());
    put("-->\n");
    return true;
}

bool XmlPrinter::Visit(const TiXmlUnknown& unknown)
{
    indent();
    put('<');
    put(unknown.Value());
    put(">\n");
    return true;
}

void XmlPrinter::indent()
{
    for (std::size_t level = 0; level < depth_; ++level)
        put('\t');
}

void XmlPrinter::put(char character)
{
    if (used_ == sizeof(buffer_)) flush();
    buffer_[used_++] = character;
}

void XmlPrinter::put(const char* characters)
{
    const std::size_t length = std::strlen(characters);
    if (length > sizeof(buffer_) - used_) flush();
    if (length > sizeof(buffer_))
        text_.append(characters, length);
    else
    {
        std::memcpy(buffer_ + used_, characters, length);
        used_ += length;
    }
}

void XmlPrinter::putEscaped(const std::string& value)
{
    const char* at = value.data();
    const char* const end = at + value.size();
    while (at != end)
    {
        if (used_ == sizeof(buffer_)) flush();
        const char* const stop = at + std::min(static_cast<std::size_t>(end - at), sizeof(buffer_) - used_);
        char* out = buffer_ + used_;
        while (at != stop && !needsEscape(*at))
            *out++ = *at++;
        used_ = static_cast<std::size_t>(out - buffer_);
        if (at != stop) putEntity(*at++);
    }
}

void XmlPrinter::putEntity(char character)
{
    static constexpr char hexDigits[] = "0123456789ABCDEF";

    switch (character)
    {
    case '&':
        put("&amp;");
        break;
    case '<':
        put("&lt;");
        break;
    case '>':
        put("&gt;");
        break;
    case '"':
        put("&quot;");
        break;
    case '\'':
        put("&apos;");
        break;
    default:
        put("&#x");
        put(hexDigits[character >> 4]);
        put(hexDigits[character & 15]);
        put(';');
    }
}

void XmlPrinter::flush()
{
    text_.append(buffer_, used_);
    used_ = 0;
}

} // namespace frame
