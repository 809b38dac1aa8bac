#include "tests/suite/Codecs.h"
#include "tests/support/Documents.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>

namespace
{

namespace files = std::filesystem;

/// Calls @p action with each form of each codec, its name in the trace of failures. What readers print about bad values
/// is of no interest, unless something fails.
template <class Action>
void forAllCodecs(Action action)
{
    for (const CodecCase& codec : allCodecs())
    {
        SCOPED_TRACE(codec.golden());
        CapturedOutput output;
        action(codec, golden(codec.golden()));
        const std::string printed = output.text();
        if (testing::Test::HasFailure()) std::cout << printed;
    }
}

bool refusesItself(const CodecCase& codec)
{
    return codec.rewritten != nullptr && codec.rewritten[0] == '\0';
}

std::string rootOf(const std::string& text)
{
    return text.substr(1, text.find_first_of(" />") - 1);
}

} // namespace

TEST(Suite, ListsEveryCodec)
{
    std::set<std::string> listed;
    for (const CodecCase& codec : allCodecs())
        listed.insert(std::string(codec.family) + "/" + codec.codec + ".h");

    std::set<std::string> found;
    for (const auto& folder : files::directory_iterator(PARAMXML_SOURCES))
    {
        const std::string family = folder.path().filename().string();
        if (!folder.is_directory() || family == "build" || family == "tests" || family[0] == '.') continue;
        for (const auto& file : files::directory_iterator(folder))
        {
            const std::string name = file.path().stem().string();
            const bool codec = name.find("Xml") != std::string::npos || name.find("XML") != std::string::npos;
            if (file.path().extension() == ".h" && codec && files::exists(files::path(file).replace_extension(".cpp")))
                found.insert(family + "/" + name + ".h");
        }
    }
    // Not documents: the base of the codecs, the node and the printer.
    for (const char* other : {"core/IDomainXml.h", "core/XmlPrinter.h", "domain/DomainXmlNode.h"})
        EXPECT_EQ(1U, found.erase(other)) << other;
    EXPECT_EQ(found, listed);
}

TEST(Suite, BuildsATestOfEveryCodec)
{
    for (const CodecCase& codec : allCodecs())
    {
        const files::path folder = files::path(PARAMXML_SOURCES) / "tests" / codec.family;
        const std::string test = std::string(codec.codec) + "Test.cpp";
        EXPECT_TRUE(files::exists(folder / test)) << test;
        std::ifstream list(folder / "CMakeLists.txt");
        const std::string sources((std::istreambuf_iterator<char>(list)), std::istreambuf_iterator<char>());
        EXPECT_NE(std::string::npos, sources.find(" " + test + "\n")) << test << " is not built";
    }
}

TEST(Suite, HasAGoldenForEveryFormAndNoOther)
{
    std::set<std::string> expected;
    for (const CodecCase& codec : allCodecs())
    {
        EXPECT_TRUE(expected.insert(codec.golden()).second) << codec.golden() << " is listed twice";
        if (!refusesItself(codec)) expected.insert(codec.rewrittenGolden());
    }

    std::set<std::string> found;
    const files::path goldens = files::path(PARAMXML_SOURCES) / "tests" / "golden";
    for (const auto& file : files::recursive_directory_iterator(goldens))
    {
        if (file.is_regular_file()) found.insert(files::relative(file.path(), goldens).string());
    }
    EXPECT_EQ(expected, found);
}

TEST(Suite, WritesAgainWhatItReads)
{
    forAllCodecs(
        [](const CodecCase& codec, const std::string& text)
        {
            std::string rewritten;
            EXPECT_EQ(!refusesItself(codec), codec.rewrite(text, rewritten));
            const std::string expected = refusesItself(codec) ? "" : golden(codec.rewrittenGolden());
            EXPECT_TRUE(expected == rewritten) << printable(rewritten);
        });
}

TEST(Suite, RefusesAnotherRoot)
{
    forAllCodecs(
        [](const CodecCase& codec, const std::string& text)
        {
            if (std::string("element") == codec.form) return; // reads whatever element it is given
            std::string other = text;
            const std::string root = rootOf(text);
            other.replace(1, root.size(), "x");
            const std::size_t end = other.rfind("</" + root + ">");
            if (end != std::string::npos) other.replace(end + 2, root.size(), "x");
            std::string rewritten;
            EXPECT_FALSE(codec.rewrite(other, rewritten)) << printable(other);
            EXPECT_FALSE(codec.rewrite("<!--" + root + "-->", rewritten));
            EXPECT_FALSE(codec.rewrite("<x><!-- --></x><![CDATA[" + root + "]]>", rewritten));
        });
}

TEST(Suite, RefusesATextThatIsCutOff)
{
    forAllCodecs(
        [](const CodecCase& codec, const std::string& text)
        {
            for (std::size_t length = 0; length < text.size() - 1; ++length)
            {
                std::string rewritten = "untouched";
                ASSERT_FALSE(codec.rewrite(text.substr(0, length), rewritten)) << "the first " << length << " bytes";
                ASSERT_EQ("untouched", rewritten);
            }
        });
}

TEST(Suite, RefusesATextThatIsTooDeep)
{
    std::string deep;
    for (int level = 0; level < 33; ++level)
        deep = "<x>" + deep + "</x>";
    forAllCodecs(
        [&](const CodecCase& codec, const std::string& text)
        {
            std::string rewritten;
            EXPECT_FALSE(codec.rewrite(deep + text, rewritten));
            EXPECT_FALSE(codec.rewrite(text + deep, rewritten));
        });
}

// A text of which one byte has changed is refused, or read as a record; and what is written of that record is stable,
// if the form reads all that it writes. A long text tries some of the replacements at each place, in turn.
TEST(Suite, SurvivesEveryChangedByte)
{
    static const std::string replacements("\0<>\"'&/= 0x-\x7F\x80\xC3\xE0\xF0\xFF", 18);
    forAllCodecs(
        [](const CodecCase& codec, const std::string& text)
        {
            const std::size_t step = std::min(1 + text.size() / 512, replacements.size());
            for (std::size_t place = 0; place < text.size(); ++place)
            {
                for (std::size_t number = place % step; number < replacements.size(); number += step)
                {
                    std::string changed = text;
                    changed[place] = replacements[number];
                    std::string once;
                    if (!codec.rewrite(changed, once) || codec.rewritten != nullptr) continue;
                    std::string twice;
                    ASSERT_TRUE(codec.rewrite(once, twice)) << printable(changed);
                    ASSERT_TRUE(once == twice) << printable(changed) << printable(once) << printable(twice);
                }
            }
        });
}

// The same where the text switches to UTF-8, in which a lead byte takes the bytes behind it along.
TEST(Suite, SurvivesLeadBytesInUtf8)
{
    forAllCodecs(
        [](const CodecCase& codec, const std::string& text)
        {
            for (std::size_t place = 0; place < text.size(); ++place)
            {
                std::string changed = "\xEF\xBB\xBF" + text;
                changed[place + 3] = "\xC3\xE0\xF0"[place % 3];
                std::string rewritten;
                codec.rewrite(changed, rewritten);
                codec.rewrite(changed.substr(0, place + 4), rewritten);
            }
        });
}
