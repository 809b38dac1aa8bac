#pragma once

/// Standard Base64, with padding and without line breaks. Stateless; may be called from any thread.
///
/// @par Errors
/// Every operation gives 0 on success. A null pointer, a negative length, a buffer that is too small and a text that is
/// not Base64 give another number, write nothing and set the output length to 0.
class Base64Codecs
{
public:
    /// Encodes @p length bytes, and a terminating zero behind them.
    /// @param outputLength On entry the room in @p output, the terminating zero included; afterwards the number of
    ///        characters written, without it.
    static int base64Encode(const char* input, int length, char* output, int& outputLength);

    /// Decodes @p length characters; groups of four, the last one padded.
    /// @param outputLength On entry the room in @p output; afterwards the number of bytes written.
    static int base64Decode(const char* input, int length, char* output, int& outputLength);
};
