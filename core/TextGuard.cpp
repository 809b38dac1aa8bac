#include "core/TextGuard.h"

#include <cctype>
#include <cstring>
#include <strings.h>
#include <tinyxml.h>

namespace frame
{

namespace
{

constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

bool startsWith(const char* text, const char* prefix)
{
    return std::strncmp(text, prefix, std::strlen(prefix)) == 0;
}

bool startsWithIgnoringCase(const char* text, const char* prefix)
{
    return strncasecmp(text, prefix, std::strlen(prefix)) == 0;
}

bool startsName(char character)
{
    const unsigned char byte = static_cast<unsigned char>(character);
    return byte >= 127 || std::isalpha(byte) != 0 || byte == '_';
}

int lengthOfCharacter(char first)
{
    return TiXmlBase::utf8ByteTable[static_cast<unsigned char>(first)];
}

/// What may end a run of plain characters.
enum Mark : unsigned char
{
    endOfText = 1,
    tagMark = 2, // in a start tag: the sign of equality, either quote, the closing bracket
    singleQuote = 4,
    doubleQuote = 8,
    openBracket = 16,
    ampersand = 32,
    multiByte = 64
};

struct MarkTable
{
    unsigned char of[256] = {};

    constexpr MarkTable()
    {
        for (int byte = 0x80; byte < 256; ++byte)
            of[byte] = multiByte;
        of[0] = endOfText;
        of[static_cast<unsigned char>('=')] = tagMark;
        of[static_cast<unsigned char>('>')] = tagMark;
        of[static_cast<unsigned char>('\'')] = tagMark | singleQuote;
        of[static_cast<unsigned char>('"')] = tagMark | doubleQuote;
        of[static_cast<unsigned char>('<')] = openBracket;
        of[static_cast<unsigned char>('&')] = ampersand;
    }
};

constexpr MarkTable marks;

unsigned marksOf(char character)
{
    return marks.of[static_cast<unsigned char>(character)];
}

/// Walks a text as TinyXML does, down to its oddities, but keeps only the number of open elements. Wherever TinyXML
/// gives up, the walk may go on or end as it likes: nothing behind that place is read.
class Walk
{
public:
    Walk(const char* text, unsigned maximumDepth, unsigned maximumAttributes) :
        at_(text), maximumDepth_(maximumDepth), maximumAttributes_(maximumAttributes)
    {
        if (startsWith(text, byteOrderMark)) encoding_ = TIXML_ENCODING_UTF8;
    }

    bool staysWithinLimits()
    {
        for (skipSpace(); *at_ != '\0'; skipSpace())
        {
            if (*at_ != '<')
            {
                if (depth_ == 0) return true; // text outside the root ends the reading
                skipTo(openBracket);
            }
            else if (depth_ > 0 && at_[1] == '/')
            {
                skipBehind(">");
                --depth_;
            }
            else if (startsWithIgnoringCase(at_, "<?xml"))
                skipDeclaration();
            else if (startsWith(at_, "<!--"))
                skipBehind("-->", 4);
            else if (startsWith(at_, "<![CDATA["))
                skipBehind("]]>", 9);
            else if (!startsName(at_[1]))
                skipBehind(">");
            else if (!enterElement())
                return false;
        }
        return true;
    }

private:
    void stop() { at_ = ""; }

    void skipBehind(const char* mark, int from = 0)
    {
        const char* found = std::strstr(at_ + from, mark);
        if (found == nullptr)
            stop();
        else
            at_ = found + std::strlen(mark);
    }

    /// Moves to the next @p mark of a value or a text. Two things take whatever they cover along: a character
    /// reference, and in UTF-8 the lead byte of a character.
    void skipTo(Mark mark)
    {
        const unsigned stops =
            mark | endOfText | ampersand | (encoding_ == TIXML_ENCODING_UTF8 ? unsigned{multiByte} : 0U);
        for (;;)
        {
            skipPlain(stops);
            if ((marksOf(*at_) & (mark | endOfText)) != 0) return;
            if (*at_ == '&')
                skipEntity();
            else
                skipCharacter();
        }
    }

    void skipPlain(unsigned stops)
    {
        const char* at = at_;
        while ((marksOf(*at) & stops) == 0)
            ++at;
        at_ = at;
    }

    void skipCharacter()
    {
        for (int bytes = lengthOfCharacter(*at_); bytes > 0 && *at_ != '\0'; --bytes)
            ++at_;
    }

    /// A character reference ends at the next semicolon and is read backwards from there to the nearest sign that
    /// begins a number, so that in "&#x'>x;" everything belongs to it.
    void skipEntity()
    {
        if (at_[1] != '#' || at_[2] == '\0')
        {
            ++at_;
            return;
        }
        const bool hexadecimal = at_[2] == 'x';
        const char* end = std::strchr(at_ + (hexadecimal ? 3 : 2), ';');
        if (end == nullptr) return stop();

        const char* digit = end - 1;
        while (hexadecimal ? std::isxdigit(static_cast<unsigned char>(*digit)) != 0
                           : std::isdigit(static_cast<unsigned char>(*digit)) != 0)
            --digit;
        if (*digit != (hexadecimal ? 'x' : '#')) return stop();
        at_ = end + 1;
    }

    /// White space and, in UTF-8, byte order marks and the two characters that are none.
    void skipSpace()
    {
        for (;;)
        {
            if (std::isspace(static_cast<unsigned char>(*at_)) != 0)
                ++at_;
            else if (encoding_ == TIXML_ENCODING_UTF8 &&
                     (startsWith(at_, byteOrderMark) || startsWith(at_, "\xEF\xBF\xBE") ||
                      startsWith(at_, "\xEF\xBF\xBF")))
                at_ += 3;
            else
                return;
        }
    }

    /// A declaration at the top tells the encoding of what follows, unless that is known already.
    void skipDeclaration()
    {
        TiXmlDeclaration declaration;
        const char* end = declaration.Parse(at_, nullptr, encoding_);
        if (end == nullptr) return stop();
        at_ = end;

        if (depth_ > 0 || encoding_ != TIXML_ENCODING_UNKNOWN) return;
        const char* encoding = declaration.Encoding();
        const bool utf8 =
            *encoding == '\0' || startsWithIgnoringCase(encoding, "UTF-8") || startsWithIgnoringCase(encoding, "UTF8");
        encoding_ = utf8 ? TIXML_ENCODING_UTF8 : TIXML_ENCODING_LEGACY;
    }

    /// Passes over a start tag. Its attributes are counted by their signs of equality, those inside a value without
    /// quotes too; quotes are met behind these signs only.
    bool enterElement()
    {
        unsigned attributes = 0;
        for (;;)
        {
            skipPlain(endOfText | tagMark);
            switch (*at_)
            {
            case '=':
                if (++attributes > maximumAttributes_) return false;
                break;
            case '\'':
            case '"':
            {
                const Mark quote = *at_ == '"' ? doubleQuote : singleQuote;
                ++at_;
                skipTo(quote);
                if (*at_ == '\0') return true;
                break;
            }
            case '>':
                if (at_[-1] != '/' && ++depth_ > maximumDepth_) return false;
                ++at_;
                return true;
            default:
                return true;
            }
            ++at_;
        }
    }

    const char* at_;
    const unsigned maximumDepth_;
    const unsigned maximumAttributes_;
    unsigned depth_ = 0;
    TiXmlEncoding encoding_ = TIXML_ENCODING_UNKNOWN;
};

} // namespace

bool withinLimits(const char* text, unsigned depth, unsigned attributes)
{
    return Walk(text, depth, attributes).staysWithinLimits();
}

bool endsInsideCharacter(const char* text)
{
    const std::size_t length = std::strlen(text);
    for (std::size_t left = 1; left <= 3 && left <= length; ++left)
    {
        if (lengthOfCharacter(text[length - left]) > static_cast<int>(left)) return true;
    }
    return false;
}

} // namespace frame
