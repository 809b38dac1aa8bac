#include "tests/suite/Codecs.h"

#include "tests/suite/Rewrite.h"

std::vector<CodecCase> snapshotCodecs()
{
    return {
        // clang-format off
        // clang-format on
    };
}
