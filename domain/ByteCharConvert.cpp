#include "domain/ByteCharConvert.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{

constexpr int groupSize = 4;

} // namespace

bool ByteCharConvert::convertByteToChar(char* output, int& outputLength, const unsigned char* input, int length)
{
    if (output == nullptr || input == nullptr) return false;

    outputLength = 0;
    for (int at = 0; at < length; ++at)
    {
        std::snprintf(output + outputLength, groupSize + 1, "%04d", input[at]);
        outputLength += groupSize;
    }
    return true;
}

bool ByteCharConvert::convertCharToByte(unsigned char* output, int& outputLength, const char* input, int length)
{
    if (output == nullptr || input == nullptr) return false;

    outputLength = 0;
    for (int group = 0; group < length / groupSize; ++group)
    {
        char digits[groupSize + 1] = {};
        std::memcpy(digits, input + std::ptrdiff_t{group} * groupSize, groupSize);
        output[outputLength++] = static_cast<unsigned char>(std::strtol(digits, nullptr, 10));
    }
    return true;
}
