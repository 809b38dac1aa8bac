#pragma once

#include <cstddef>
#include <string>
#include <tinyxml.h>

namespace [[gnu::visibility("hidden")]] frame
{

/// Prints a tree to the end of a text, byte for byte as `TiXmlPrinter` does with an indent of one tab, but without the
/// copies that it makes of every name and value. The text is complete after `flush`.
class XmlPrinter : public TiXmlVisitor
{
public:
    explicit XmlPrinter(std::string& text) : text_(text) {}

    using TiXmlVisitor::VisitEnter;
    using TiXmlVisitor::VisitExit;
    bool VisitEnter(const TiXmlElement& element, const TiXmlAttribute* attribute) override;
    bool VisitExit(const TiXmlElement& element) override;
    bool Visit(const TiXmlDeclaration& declaration) override;
    bool Visit(const TiXmlText& text) override;
    bool Visit(const TiXmlComment& comment) override;
    bool Visit(const TiXmlUnknown& unknown) override;

    void flush();

private:
    void indent();
    void put(char character);
    void put(const char* characters);
    void putEscaped(const std::string& value);
    void putEntity(char character);

    std::string& text_;
    std::size_t depth_ = 0;
    bool onOneLine_ = false; // inside an element with nothing but a text
    char buffer_[512];       // a document is some dozens of short pieces a line: they are gathered here
    std::size_t used_ = 0;
};

} // namespace frame
