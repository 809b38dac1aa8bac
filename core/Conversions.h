#pragma once

/// The text forms of values: one meaning for attributes, properties and `DataConverter`, the same on every platform and
/// in every locale.
namespace [[gnu::visibility("hidden")]] frame
{

/// A number as text, with a terminating zero.
struct NumberText
{
    char characters[32];
};

NumberText integerText(long long value);
NumberText unsignedText(unsigned long long value);
/// The shortest text that reads back as the same value.
/// @{
NumberText floatText(float value);
NumberText doubleText(double value);
/// @}
/// "true" or "false".
const char* flagText(bool value);

/// Reads the number that @p text begins with, computed in 64 bits; false, with @p value as it was, if there is none.
/// @{
bool readInteger(const char* text, long long& value);
bool readUnsigned(const char* text, unsigned long long& value);
bool readDouble(const char* text, double& value);
/// @}

/// Reads "true" or "1", "false" or "0"; anything else stores false, and is refused.
bool readFlag(const char* text, bool& value);

/// The same for readers to whom a present value is never an error: what is no number is 0, what is no flag is
/// false.
/// @{
long long integerIn(const char* text);
unsigned long long unsignedIn(const char* text);
float floatIn(const char* text);
double doubleIn(const char* text);
bool flagIn(const char* text);
/// @}

/// The whole number in @p text by way of a `double`, as peers read the 64-bit values of playback and snapshots: a
/// fraction is cut off, of more than 53 significant bits the lowest are lost, what is out of range gives the nearest
/// end of it, and what is no number gives 0.
long long wholeNumberIn(const char* text);

/// @p value without its fraction; what is out of range gives the nearest end of it, and what is no number gives 0.
/// @{
int intFrom(float value);
unsigned unsignedFrom(float value);
/// @}

} // namespace frame
