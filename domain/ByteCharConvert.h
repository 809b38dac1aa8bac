#pragma once

/// Bytes to text of four decimal digits each, and back: 0, 7 and 255 are "000000070255". Stateless; may be called from
/// any thread.
///
/// @warning Neither operation knows the size of its output. The caller sees to it that there is room.
class ByteCharConvert
{
public:
    /// Writes four digits for each byte, and a terminating zero: 4 x @p length + 1 bytes.
    /// @param outputLength The number of digits written. With a length below 1 it is 0, and the output is left alone.
    /// @return false, with everything left as it was, if a pointer is null.
    static bool convertByteToChar(char* output, int& outputLength, const unsigned char* input, int length);

    /// Reads a byte from each whole group of four characters: @p length / 4 bytes. A group above 255 wraps, and one
    /// that is no number reads as 0.
    /// @param outputLength The number of bytes written.
    /// @return false, with everything left as it was, if a pointer is null.
    static bool convertCharToByte(unsigned char* output, int& outputLength, const char* input, int length);
};
