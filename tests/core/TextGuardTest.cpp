#include "core/TextGuard.h"

#include "core/Frame.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>
#include <sys/mman.h>
#include <unistd.h>

namespace
{

constexpr unsigned plenty = 1000000;

std::string repeated(const std::string& text, int count)
{
    std::string result;
    for (; count > 0; --count)
        result += text;
    return result;
}

std::string nested(int depth)
{
    return repeated("<a>", depth) + repeated("</a>", depth);
}

std::string withAttributes(int count)
{
    std::string text = "<a";
    for (int number = 0; number < count; ++number)
        text += " n" + std::to_string(number) + "='1'";
    return text + "/>";
}

bool parses(const std::string& text)
{
    TiXmlDocument document;
    return frame::parse(document, text);
}

struct Shape
{
    unsigned depth = 0; // of elements that have anything inside
    unsigned attributes = 0;
};

Shape shapeOf(const TiXmlNode& node)
{
    Shape shape;
    for (const TiXmlElement* child = node.FirstChildElement(); child != nullptr; child = child->NextSiblingElement())
    {
        unsigned attributes = 0;
        for (const TiXmlAttribute* each = child->FirstAttribute(); each != nullptr; each = each->Next())
            ++attributes;
        const Shape below = shapeOf(*child);
        shape.depth = std::max(shape.depth, below.depth + (child->NoChildren() ? 0 : 1));
        shape.attributes = std::max({shape.attributes, attributes, below.attributes});
    }
    return shape;
}

} // namespace

TEST(TextGuard, TakesDocumentsOf32LevelsAndNoMore)
{
    EXPECT_TRUE(parses(nested(32)));
    EXPECT_FALSE(parses(nested(33)));
    EXPECT_FALSE(parses(nested(1000)));
    EXPECT_TRUE(parses(repeated("<b>", 32) + "<c/>" + repeated("</b>", 32)));
    EXPECT_FALSE(parses("<b/>" + nested(33)));
}

TEST(TextGuard, EndsDeepTextsThatNeverClose)
{
    EXPECT_FALSE(parses(repeated("<a>", 1000000)));
    EXPECT_FALSE(parses(repeated("<a x='1'>", 1000000)));
}

TEST(TextGuard, DoesNotCountWhatIsClosed)
{
    EXPECT_TRUE(parses("<list>" + repeated("<item x='>'/>", 1000) + "</list>"));
    EXPECT_TRUE(parses("<list>" + repeated("<item><x/></item>", 1000) + "</list>"));
    EXPECT_TRUE(parses("<list>" + repeated("<!--<a>-->", 1000) + "</list>"));
    EXPECT_TRUE(parses("<list>" + repeated("<![CDATA[<a>]]>", 1000) + "</list>"));
    EXPECT_TRUE(parses("<list>" + repeated("<item x=\"<a>\" y='<a>' />", 1000) + "</list>"));
    EXPECT_TRUE(parses("<list>" + repeated("<item x=/>", 1000) + "</list>"));
    EXPECT_TRUE(parses("<list>" + repeated("<?note <a ?>", 1000) + "</list>"));
}

TEST(TextGuard, Takes256AttributesAndNoMore)
{
    EXPECT_TRUE(parses(withAttributes(256)));
    EXPECT_FALSE(parses(withAttributes(257)));
    EXPECT_FALSE(parses(withAttributes(16000)));
    EXPECT_TRUE(parses("<list>" + withAttributes(200) + withAttributes(200) + "</list>"));
}

TEST(TextGuard, SetsTheErrorOfADocumentThatIsRefused)
{
    TiXmlDocument document;
    EXPECT_FALSE(frame::parse(document, nested(33)));
    EXPECT_TRUE(document.Error());
    EXPECT_TRUE(document.NoChildren());
}

// What hides a tag from TinyXML hides it from the guard, and what does not, does not.
TEST(TextGuard, SeesTagsBehindOddities)
{
    // In UTF-8 a lead byte takes the closing quote along, and the next quote closes the value.
    const std::string swallowed = "\xEF\xBB\xBF" + repeated("<a b=\"\xE0\"/><c d=\">", 40);
    EXPECT_FALSE(frame::withinLimits(swallowed.c_str(), 32, plenty));
    EXPECT_TRUE(frame::withinLimits(swallowed.c_str() + 3, 32, plenty)); // elsewhere it is a byte as any other

    // A declaration switches to UTF-8, also one whose encoding is written in references.
    for (const char* declaration : {"<?xml version='1.0'?>", "<?xml encoding='utf-8'?>", "<?xml encoding='UTF8x'?>",
                                    "<?xml encoding='&#85;TF-8'?>", "<?XML?>", "<!-- --><?xml?>"})
        EXPECT_FALSE(frame::withinLimits((declaration + swallowed.substr(3)).c_str(), 32, plenty)) << declaration;
    for (const char* declaration : {"<?xml encoding='GB2312'?>", "<?xml encoding='GBK'?><?xml?>", "<?xmpl?>"})
        EXPECT_TRUE(frame::withinLimits((declaration + swallowed.substr(3)).c_str(), 32, plenty)) << declaration;

    // A reference reaches to its semicolon, over quotes and tags.
    EXPECT_FALSE(frame::withinLimits(repeated("<a b='&#x'/>x;'>", 40).c_str(), 32, plenty));
    EXPECT_FALSE(frame::withinLimits(repeated("<a b='&#'/>#;'>", 40).c_str(), 32, plenty));
    EXPECT_FALSE(frame::withinLimits(repeated("<a>&#x</a>x41;", 40).c_str(), 32, plenty));
}

// The limits as the guard measures them are the depth and the attributes of the tree that TinyXML makes.
TEST(TextGuard, MeasuresWhatTinyXmlReads)
{
    static const std::string pieces[] = {"<a>",
                                         "<a>",
                                         "<b x='1'>",
                                         "<b x=1 y=\"2\">",
                                         "<c/>",
                                         "<c z='/'/>",
                                         "</a>",
                                         "</b>",
                                         "</a >",
                                         "<a",
                                         " x='",
                                         "\"",
                                         "'",
                                         "/>",
                                         ">",
                                         "<",
                                         "/",
                                         "=",
                                         " ",
                                         "text",
                                         "&",
                                         "&#x",
                                         "x;",
                                         "&#",
                                         "#;",
                                         "&#65;",
                                         "&lt;",
                                         "<!--",
                                         "-->",
                                         "<![CDATA[",
                                         "]]>",
                                         "<!D ",
                                         "<?p ",
                                         "?>",
                                         "\xE0",
                                         "\xC3",
                                         "\xF0",
                                         "\xEF\xBB\xBF",
                                         "\xEF\xBF\xBE",
                                         "<?xml?>",
                                         "<?xml version='1.0' encoding='GBK'?>",
                                         "\n",
                                         "\x7F>",
                                         "<_q w=/>",
                                         "<\x7Fq>",
                                         "version='",
                                         "encoding=UTF-8"};

    std::mt19937 random(7);
    std::uniform_int_distribution<std::size_t> piece(0, std::size(pieces) - 1);
    std::uniform_int_distribution<int> length(1, 40);
    int accepted = 0;
    for (int round = 0; round < 200000; ++round)
    {
        std::string text = round % 3 == 0 ? "<?xml?>" : "";
        for (int left = length(random); left > 0; --left)
            text += pieces[piece(random)];

        TiXmlDocument document;
        document.SetTabSize(0);
        document.Parse((text + std::string(4, '\0')).c_str(), nullptr, TIXML_ENCODING_UNKNOWN);
        const Shape shape = shapeOf(document);

        // Whatever TinyXML came to before it gave up was counted.
        if (shape.depth > 0)
        {
            ASSERT_FALSE(frame::withinLimits(text.c_str(), shape.depth - 1, plenty)) << text;
        }
        if (shape.attributes > 0)
        {
            ASSERT_FALSE(frame::withinLimits(text.c_str(), plenty, shape.attributes - 1)) << text;
        }
        if (document.Error()) continue;
        // An element that holds nothing but blanks is open all the same.
        ++accepted;
        ASSERT_TRUE(frame::withinLimits(text.c_str(), shape.depth + 1, plenty)) << text;
    }
    EXPECT_GT(accepted, 5000);
}

// The page behind the text is closed.
TEST(TextGuard, LooksAtNothingBehindTheText)
{
    const std::size_t page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    char* pages =
        static_cast<char*>(mmap(nullptr, 2 * page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(MAP_FAILED, pages);
    ASSERT_EQ(0, mprotect(pages + page, page, PROT_NONE));

    for (const char* text :
         {"", "<", "<a b='\xF0", "\xEF\xBB\xBF<a b='\xF0", "\xEF\xBB\xBF<a>\xE0", "\xEF\xBB\xBF<a>\xEF\xBB",
          "<a b='&#x", "<a b='&#", "<a b='&", "<!--", "<!-", "<![CDATA[", "<?xml", "<a></", "<a></a"})
    {
        char* place = pages + page - std::strlen(text) - 1;
        std::strcpy(place, text);
        EXPECT_TRUE(frame::withinLimits(place, 32, 256)) << text;
        frame::endsInsideCharacter(place);
    }
    munmap(pages, 2 * page);
}

TEST(TextGuard, KnowsTextsThatEndInsideACharacter)
{
    EXPECT_FALSE(frame::endsInsideCharacter(""));
    EXPECT_FALSE(frame::endsInsideCharacter("<a/>\n"));
    EXPECT_FALSE(frame::endsInsideCharacter("\xC3\xA4"));
    EXPECT_FALSE(frame::endsInsideCharacter("\xE2\x82\xAC"));
    EXPECT_FALSE(frame::endsInsideCharacter("\xF0\x9F\x93\xB7"));
    EXPECT_TRUE(frame::endsInsideCharacter("\xC3"));
    EXPECT_TRUE(frame::endsInsideCharacter("\xE2\x82"));
    EXPECT_TRUE(frame::endsInsideCharacter("a\xF0\x9F\x93"));
}

TEST(TextGuard, RefusesNoTextForItsCharacters)
{
    EXPECT_TRUE(parses("<a b='\xC4\xE3\xBA\xC3'/>"));
    EXPECT_TRUE(parses("<?xml version='1.0' encoding='GBK'?><a b='\xC4\xE3\xBA\xC3'/>\xE0"));
    EXPECT_TRUE(parses("<a/>\xF0"));
}

TEST(TextGuard, EndsAtAnEmbeddedZero)
{
    EXPECT_TRUE(parses(std::string("<a/>\0<b>", 8)));
    EXPECT_FALSE(parses(std::string("<a\0/>", 5)));

    // A lead byte would take the zeros along, and the value would be closed behind them.
    EXPECT_FALSE(parses(std::string("<?xml?><a b='\xC3\0'/>", 18)));
    EXPECT_FALSE(parses(std::string("<?xml?><a b='\xE0\0\0'/>", 19)));
    EXPECT_FALSE(parses(std::string("<?xml?><a b='\xF0\0\0\0'/>", 20)));
    EXPECT_FALSE(parses(std::string("<?xml?><a b='\xF0\x80\0\0'/>", 20)));
}
