// Any text through any codec: it is refused, or what is written of it is stable.

#include "tests/suite/Codecs.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    // Readers print lines about missing values. libFuzzer itself reports on the error output.
    if (std::freopen("/dev/null", "w", stdout) == nullptr) std::abort();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size < 2) return 0;
    const std::size_t number = data[0] | std::size_t{data[1]} << 8;
    const CodecCase& codec = allCodecs()[number % allCodecs().size()];
    const std::string text(reinterpret_cast<const char*>(data) + 2, size - 2);

    std::string once;
    std::string twice;
    if (codec.rewrite(text, once) && (!codec.rewrite(once, twice) || once != twice)) std::abort();
    return 0;
}
