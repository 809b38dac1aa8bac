#include "domain/TimeConverter.h"

#include <cctype>
#include <cstdint>
#include <cstdio>
#include <limits>

// The C library's calendar is not used: on 32-bit systems its time ends in 2038.

namespace
{

constexpr std::uint64_t secondsPerDay = 86400;

struct Date
{
    std::uint64_t year;
    unsigned month;
    unsigned day;
};

// The calendar is counted from 1 March of year 0, so that the leap day is the last of a year. It repeats after 400
// years, which are 146097 days; 1970-01-01 is day 719468. The months from March on have 31, 30, 31, 30, 31 days, and
// again.
constexpr std::uint64_t daysOfEra = 146097;
constexpr std::uint64_t firstDay = 719468;

Date dateOf(std::uint64_t daysSince1970)
{
    const std::uint64_t days = daysSince1970 + firstDay;
    const std::uint64_t dayOfEra = days % daysOfEra;
    const std::uint64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const std::uint64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::uint64_t monthFromMarch = (5 * dayOfYear + 2) / 153;

    Date date;
    date.day = static_cast<unsigned>(dayOfYear - (153 * monthFromMarch + 2) / 5 + 1);
    date.month = static_cast<unsigned>(monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9);
    date.year = days / daysOfEra * 400 + yearOfEra + (date.month <= 2 ? 1 : 0);
    return date;
}

std::uint64_t daysSince1970(const Date& date)
{
    const std::uint64_t year = date.year - (date.month <= 2 ? 1 : 0);
    const std::uint64_t yearOfEra = year % 400;
    const std::uint64_t monthFromMarch = date.month > 2 ? date.month - 3 : date.month + 9;
    const std::uint64_t dayOfYear = (153 * monthFromMarch + 2) / 5 + date.day - 1;
    return year / 400 * daysOfEra + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear - firstDay;
}

/// Reads @p digits digits and the sign behind them.
bool takeNumber(const char*& text, int digits, char sign, unsigned& number)
{
    number = 0;
    for (; digits > 0; --digits, ++text)
    {
        if (std::isdigit(static_cast<unsigned char>(*text)) == 0) return false;
        number = number * 10 + static_cast<unsigned>(*text - '0');
    }
    if (*text != sign) return false;
    if (sign != '\0') ++text;
    return true;
}

/// Reads a year of four digits, or of up to twelve that do not begin with 0, and the sign behind it.
bool takeYear(const char*& text, std::uint64_t& year)
{
    const char* begin = text;
    for (year = 0; std::isdigit(static_cast<unsigned char>(*text)) != 0 && text - begin < 12; ++text)
        year = year * 10 + static_cast<unsigned>(*text - '0');
    if (text - begin < 4 || (text - begin > 4 && *begin == '0') || *text != '-') return false;
    ++text;
    return true;
}

} // namespace

bool TimeConverter::longToStr(const unsigned long& seconds, std::string& text) const
{
    const Date date = dateOf(seconds / secondsPerDay);
    const unsigned second = static_cast<unsigned>(seconds % secondsPerDay);
    char characters[64];
    std::snprintf(characters, sizeof(characters), "%04llu-%02u-%02u %02u:%02u:%02u",
                  static_cast<unsigned long long>(date.year), date.month, date.day, second / 3600, second / 60 % 60,
                  second % 60);
    text = characters;
    return true;
}

bool TimeConverter::strToLong(const char* text, unsigned long& seconds) const
{
    seconds = 0;
    if (text == nullptr) return false;

    Date date;
    unsigned hour = 0;
    unsigned minute = 0;
    unsigned second = 0;
    const bool wellFormed = takeYear(text, date.year) && takeNumber(text, 2, '-', date.month) &&
                            takeNumber(text, 2, ' ', date.day) && takeNumber(text, 2, ':', hour) &&
                            takeNumber(text, 2, ':', minute) && takeNumber(text, 2, '\0', second);
    if (!wellFormed || date.year < 1970 || date.month < 1 || date.month > 12 || date.day < 1 || hour > 23 ||
        minute > 59 || second > 59)
        return false;

    const std::uint64_t days = daysSince1970(date);
    if (dateOf(days).day != date.day) return false; // a 30 February became a day of March

    // A year of twelve digits gives some 3e19 seconds, more than 64 bits hold: test before multiplying.
    constexpr std::uint64_t latest = std::numeric_limits<unsigned long>::max();
    const std::uint64_t secondOfDay = hour * 3600 + minute * 60 + second;
    if (days > (latest - secondOfDay) / secondsPerDay) return false;
    seconds = static_cast<unsigned long>(days * secondsPerDay + secondOfDay);
    return true;
}

bool TimeConverter::longToStruct(const unsigned long& seconds, ZTDateTime& time) const
{
    const std::uint64_t days = seconds / secondsPerDay;
    const Date date = dateOf(days);
    const unsigned second = static_cast<unsigned>(seconds % secondsPerDay);
    time.year = static_cast<unsigned short>(date.year);
    time.month = static_cast<unsigned short>(date.month);
    time.dayOfWeek = static_cast<unsigned short>((days + 4) % 7); // 1970-01-01 was a Thursday
    time.day = static_cast<unsigned short>(date.day);
    time.hour = static_cast<unsigned short>(second / 3600);
    time.minute = static_cast<unsigned short>(second / 60 % 60);
    time.second = static_cast<unsigned short>(second % 60);
    return true;
}
