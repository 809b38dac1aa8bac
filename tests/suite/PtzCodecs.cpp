#include "tests/suite/Codecs.h"

#include "tests/suite/Rewrite.h"

std::vector<CodecCase> ptzCodecs()
{
    return {
        // clang-format off
        // clang-format on
    };
}
