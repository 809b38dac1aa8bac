#include "domain/Base64Codecs.h"

#include <cstring>

namespace
{

constexpr int success = 0;
constexpr int badArgument = -1;
constexpr int noRoom = -2;
constexpr int badText = -3;

constexpr char digits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// The value of a Base64 digit; 64 if it is none.
unsigned valueOf(char digit)
{
    const char* found = digit != '\0' ? std::strchr(digits, digit) : nullptr;
    return found != nullptr ? static_cast<unsigned>(found - digits) : 64;
}

/// How many of the last characters are padding.
int paddingOf(const char* input, int length)
{
    if (length == 0 || input[length - 1] != '=') return 0;
    return input[length - 2] != '=' ? 1 : 2;
}

} // namespace

int Base64Codecs::base64Encode(const char* input, int length, char* output, int& outputLength)
{
    const long long room = outputLength;
    outputLength = 0;
    if (input == nullptr || output == nullptr || length < 0) return badArgument;
    if ((static_cast<long long>(length) + 2) / 3 * 4 + 1 > room) return noRoom;

    char* out = output;
    for (int at = 0; at < length; at += 3)
    {
        const int left = length - at;
        unsigned bits = static_cast<unsigned>(static_cast<unsigned char>(input[at])) << 16;
        if (left > 1) bits |= static_cast<unsigned>(static_cast<unsigned char>(input[at + 1])) << 8;
        if (left > 2) bits |= static_cast<unsigned char>(input[at + 2]);
        *out++ = digits[bits >> 18];
        *out++ = digits[bits >> 12 & 63];
        *out++ = left > 1 ? digits[bits >> 6 & 63] : '=';
        *out++ = left > 2 ? digits[bits & 63] : '=';
    }
    *out = '\0';
    outputLength = static_cast<int>(out - output);
    return success;
}

int Base64Codecs::base64Decode(const char* input, int length, char* output, int& outputLength)
{
    const int room = outputLength;
    outputLength = 0;
    if (input == nullptr || output == nullptr || length < 0) return badArgument;
    if (length % 4 != 0) return badText;

    const int count = length - paddingOf(input, length);
    for (int at = 0; at < count; ++at)
    {
        if (valueOf(input[at]) > 63) return badText;
    }
    const int bytes = length / 4 * 3 - (length - count);
    if (bytes > room) return noRoom;

    unsigned bits = 0;
    int out = 0;
    for (int at = 0; at < count; ++at)
    {
        bits = bits << 6 | valueOf(input[at]);
        // Of every four digits the first completes no byte; the others do, with what the one before left over.
        const int complete = at % 4;
        if (complete != 0) output[out++] = static_cast<char>(bits >> (6 - 2 * complete) & 0xFF);
    }
    outputLength = out;
    return success;
}
