#pragma once

#include <gtest/gtest.h>
#include <string>

/// The text of tests/golden/@p name.
std::string golden(const std::string& name);

/// Whether @p text is, byte for byte, that of tests/golden/@p name. With PARAMXML_REGENERATE in the environment the
/// file is written instead, and the test fails all the same. A failure shows both texts, without their passwords.
testing::AssertionResult matchesGolden(const std::string& text, const std::string& name);

/// @p text without its passwords: what a test may print of a document.
std::string printable(const std::string& text);

/// Everything that is written to standard output while this object lives.
class CapturedOutput
{
public:
    CapturedOutput();
    ~CapturedOutput();
    CapturedOutput(const CapturedOutput&) = delete;
    CapturedOutput& operator=(const CapturedOutput&) = delete;

    /// Ends the capture.
    std::string text();

private:
    bool open_ = true;
};

/// What a codec in document form writes.
template <class Codec>
std::string written(Codec& codec)
{
    EXPECT_TRUE(codec.createXmlString());
    return codec.getXmlString();
}

/// Whether a codec in document form reads @p text.
template <class Codec>
bool reads(Codec& codec, const std::string& text)
{
    codec.setXmlString(text);
    return codec.parseXmlString();
}
