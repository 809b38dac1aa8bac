#include "tests/suite/Codecs.h"

#include "tests/suite/Rewrite.h"

std::vector<CodecCase> analysisCodecs()
{
    return {
        // clang-format off
        // clang-format on
    };
}
