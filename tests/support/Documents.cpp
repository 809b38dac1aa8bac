#include "tests/support/Documents.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <regex>

namespace
{

std::string pathOf(const std::string& name)
{
    return std::string(PARAMXML_GOLDENS) + "/" + name;
}

} // namespace

std::string golden(const std::string& name)
{
    std::ifstream file(pathOf(name), std::ios::binary);
    EXPECT_TRUE(file) << "there is no golden " << name;
    return std::string(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
}

testing::AssertionResult matchesGolden(const std::string& text, const std::string& name)
{
    if (std::getenv("PARAMXML_REGENERATE") != nullptr)
    {
        std::ofstream(pathOf(name), std::ios::binary) << text;
        return testing::AssertionFailure() << name << " was written anew; read it, then run the test as usual";
    }
    const std::string expected = golden(name);
    if (text == expected) return testing::AssertionSuccess();
    return testing::AssertionFailure() << name << " is\n"
                                       << printable(expected) << "but this was written:\n"
                                       << printable(text);
}

std::string printable(const std::string& text)
{
    static const std::regex password("(pass-?word=)(\"[^\"]*\"?|'[^']*'?)", std::regex::icase);
    return std::regex_replace(text, password, "$1...");
}

CapturedOutput::CapturedOutput()
{
    testing::internal::CaptureStdout();
}

CapturedOutput::~CapturedOutput()
{
    if (open_) testing::internal::GetCapturedStdout();
}

std::string CapturedOutput::text()
{
    open_ = false;
    return testing::internal::GetCapturedStdout();
}
