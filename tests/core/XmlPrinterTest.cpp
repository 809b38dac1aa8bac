#include "core/XmlPrinter.h"

#include "core/Frame.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace
{

std::string printedByUs(const TiXmlNode& node)
{
    std::string text = "what was there";
    frame::print(node, text);
    return text;
}

std::string printedByTinyXml(const TiXmlNode& node)
{
    TiXmlPrinter printer;
    printer.SetIndent("\t");
    node.Accept(&printer);
    return printer.Str();
}

class RandomTree
{
public:
    explicit RandomTree(unsigned seed) : random_(seed) {}

    void fill(TiXmlNode& parent, int depth)
    {
        for (int count = number(4); count > 0; --count)
            parent.LinkEndChild(node(depth, parent.ToDocument() != nullptr));
    }

private:
    int number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random_); }

    /// All byte values, the ones that matter more often.
    std::string text()
    {
        static const std::string special("&<>\"'\t\n\0 x", 10);
        std::string result;
        for (int left = number(12); left > 0; --left)
            result += number(2) == 0 ? special[static_cast<std::size_t>(number(10))] : static_cast<char>(number(256));
        return result;
    }

    TiXmlNode* node(int depth, bool inDocument)
    {
        switch (number(inDocument ? 7 : 8))
        {
        case 0:
            return new TiXmlComment(text().c_str());
        case 1:
        {
            TiXmlUnknown* unknown = new TiXmlUnknown;
            unknown->SetValue(text());
            return unknown;
        }
        case 2:
            return new TiXmlDeclaration(text(), text(), text());
        case 3:
        {
            TiXmlText* data = new TiXmlText(text());
            data->SetCDATA(true);
            return data;
        }
        case 7:
            return new TiXmlText(text());
        default:
        {
            TiXmlElement* element = new TiXmlElement("e" + text());
            for (int count = number(4); count > 0; --count)
                element->SetAttribute("n" + text(), text());
            if (depth > 0) fill(*element, depth - 1);
            return element;
        }
        }
    }

    std::mt19937 random_;
};

} // namespace

TEST(XmlPrinter, PrintsAnElementALine)
{
    TiXmlDocument document;
    TiXmlElement& root = frame::appendElement(document, "Root");
    frame::setInt(root, "A", 1);
    TiXmlElement& list = frame::appendElement(root, "List");
    frame::setText(frame::appendElement(list, "Item"), "Name", "x");
    frame::appendElement(root, "Empty");
    EXPECT_EQ("<Root A=\"1\">\n\t<List>\n\t\t<Item Name=\"x\" />\n\t</List>\n\t<Empty />\n</Root>\n",
              printedByUs(document));
}

TEST(XmlPrinter, EscapesEveryByteAsTinyXmlDoes)
{
    TiXmlElement element("Bytes");
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
    {
        all += static_cast<char>(byte);
        element.SetAttribute("n" + std::to_string(byte), std::string(1, static_cast<char>(byte)));
    }
    element.SetAttribute(all, all);
    element.SetAttribute("quote", "\"");
    element.SetAttribute("both", "\"'");
    element.LinkEndChild(new TiXmlText(all));
    EXPECT_EQ(printedByTinyXml(element), printedByUs(element));
    EXPECT_NE(std::string::npos, printedByUs(element).find(" n1=\"&#x01;\""));
    EXPECT_NE(std::string::npos, printedByUs(element).find(" quote='&quot;'"));
}

// The printer gathers pieces of up to some hundred bytes before it hands them on.
TEST(XmlPrinter, PrintsPiecesOfAnyLength)
{
    for (std::size_t length = 0; length < 1100; ++length)
    {
        const std::string piece(length, 'x');
        TiXmlDocument document;
        document.LinkEndChild(new TiXmlComment(piece.c_str()));
        TiXmlElement& element = frame::appendElement(document, ("e" + piece).c_str());
        frame::setText(element, ("n" + piece).c_str(), piece);
        frame::setText(element, "escaped", piece + "&" + piece);
        element.LinkEndChild(new TiXmlText(piece + "<"));
        ASSERT_EQ(printedByTinyXml(document), printedByUs(document)) << length;
    }
}

TEST(XmlPrinter, PrintsAnyTreeAsTinyXmlDoes)
{
    for (unsigned seed = 0; seed < 3000; ++seed)
    {
        TiXmlDocument document;
        RandomTree(seed).fill(document, 4);
        ASSERT_EQ(printedByTinyXml(document), printedByUs(document)) << "seed " << seed;
    }
}
