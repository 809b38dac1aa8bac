#include "core/Conversions.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <locale.h>

namespace frame
{

namespace
{

constexpr std::size_t room = sizeof(NumberText::characters) - 1; // all but the terminating zero

// strtod with the decimal point of the wire format, whatever the host's locale. Made once, never freed.
locale_t wireLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

template <class Integer>
Integer truncated(float value)
{
    using Limits = std::numeric_limits<Integer>;
    // The highest in range is no float: it becomes the first value above the range.
    if (value >= static_cast<float>(Limits::max())) return Limits::max();
    if (value <= static_cast<float>(Limits::min())) return Limits::min();
    return std::isnan(value) ? 0 : static_cast<Integer>(value);
}

} // namespace

NumberText integerText(long long value)
{
    NumberText text;
    *std::to_chars(text.characters, text.characters + room, value).ptr = '\0';
    return text;
}

NumberText unsignedText(unsigned long long value)
{
    NumberText text;
    *std::to_chars(text.characters, text.characters + room, value).ptr = '\0';
    return text;
}

NumberText floatText(float value)
{
    NumberText text;
    *std::to_chars(text.characters, text.characters + room, value).ptr = '\0';
    return text;
}

NumberText doubleText(double value)
{
    NumberText text;
    *std::to_chars(text.characters, text.characters + room, value).ptr = '\0';
    return text;
}

const char* flagText(bool value)
{
    return value ? "true" : "false";
}

bool readInteger(const char* text, long long& value)
{
    char* end = nullptr;
    const long long number = std::strtoll(text, &end, 10);
    if (end == text) return false;
    value = number;
    return true;
}

bool readUnsigned(const char* text, unsigned long long& value)
{
    char* end = nullptr;
    const unsigned long long number = std::strtoull(text, &end, 10);
    if (end == text) return false;
    value = number;
    return true;
}

bool readDouble(const char* text, double& value)
{
    char* end = nullptr;
    const double number = strtod_l(text, &end, wireLocale());
    if (end == text) return false;
    value = number;
    return true;
}

bool readFlag(const char* text, bool& value)
{
    value = std::strcmp(text, "true") == 0 || std::strcmp(text, "1") == 0;
    return value || std::strcmp(text, "false") == 0 || std::strcmp(text, "0") == 0;
}

long long integerIn(const char* text)
{
    return std::strtoll(text, nullptr, 10);
}

unsigned long long unsignedIn(const char* text)
{
    return std::strtoull(text, nullptr, 10);
}

float floatIn(const char* text)
{
    return strtof_l(text, nullptr, wireLocale());
}

double doubleIn(const char* text)
{
    return strtod_l(text, nullptr, wireLocale());
}

bool flagIn(const char* text)
{
    bool value = false;
    readFlag(text, value);
    return value;
}

long long wholeNumberIn(const char* text)
{
    const double number = doubleIn(text);
    if (number != number) return 0;
    // 2 to the power of 63, the first value above the range, is exact as a double; the highest in range is not.
    if (number >= 9223372036854775808.0) return std::numeric_limits<long long>::max();
    if (number < -9223372036854775808.0) return std::numeric_limits<long long>::min();
    return static_cast<long long>(number);
}

int intFrom(float value)
{
    return truncated<int>(value);
}

unsigned unsignedFrom(float value)
{
    return truncated<unsigned>(value);
}

} // namespace frame
