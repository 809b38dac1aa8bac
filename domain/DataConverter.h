#pragma once

#include <string>

/// Values to text and back, as the attributes of all documents carry them. Stateless; may be called from any thread.
///
/// A number reads as the digits that the text begins with, computed in 64 bits and narrowed. Where there are none the
/// result is false and the output stays as it was. The locale of the process has no part in it.
class DataConverter
{
public:
    /// @name To text; always true
    /// @{
    /// "true" or "false".
    static bool convert(const bool& value, std::string& text);
    static bool convert(const int& value, std::string& text);
    static bool convert(const long& value, std::string& text);
    static bool convert(const unsigned long& value, std::string& text);
    /// The shortest text that reads back as the same value.
    static bool convert(const double& value, std::string& text);
    /// @}

    /// @name From text
    /// @{
    /// "true" and "1" are true, "false" and "0" are false; anything else stores false and gives false.
    static bool convert(const std::string& text, bool& value);
    static bool convert(const std::string& text, int& value);
    static bool convert(const std::string& text, unsigned int& value);
    static bool convert(const std::string& text, unsigned long& value);
    /// All that `strtod` takes, with a point as the decimal sign.
    static bool convert(const std::string& text, double& value);
    /// @}
};
