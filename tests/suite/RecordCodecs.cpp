#include "tests/suite/Codecs.h"

#include "tests/suite/Rewrite.h"

std::vector<CodecCase> recordCodecs()
{
    return {
        // clang-format off
        // clang-format on
    };
}
