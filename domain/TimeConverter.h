#pragma once

#include <string>

/// A point in time, broken down by the Gregorian calendar, in UTC.
struct ZTDateTime
{
    unsigned short year = 0;      ///< all digits, 2015
    unsigned short month = 0;     ///< 1 to 12
    unsigned short dayOfWeek = 0; ///< 0 for Sunday to 6
    unsigned short day = 0;       ///< 1 to 31
    unsigned short hour = 0;      ///< 0 to 23
    unsigned short minute = 0;    ///< 0 to 59
    unsigned short second = 0;    ///< 0 to 59
};

/// Seconds since 1970-01-01 00:00:00 UTC to the protocol's time text, "2015-03-02 08:09:07" in UTC, and back.
///
/// There is no state; one converter may be used on any thread.
class TimeConverter
{
public:
    /// Always true. A year above 9999 has more than four digits.
    bool longToStr(const unsigned long& seconds, std::string& text) const;

    /// Reads what `longToStr` writes.
    /// @return false, with @p seconds 0, if @p text is null, anything else, or a time that `unsigned long` does not
    /// hold.
    bool strToLong(const char* text, unsigned long& seconds) const;

    /// Always true.
    bool longToStruct(const unsigned long& seconds, ZTDateTime& time) const;
};
