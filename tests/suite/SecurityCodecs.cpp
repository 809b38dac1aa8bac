#include "tests/suite/Codecs.h"

#include "tests/suite/Rewrite.h"

std::vector<CodecCase> securityCodecs()
{
    return {
        // clang-format off
        // clang-format on
    };
}
