#include "tests/suite/Codecs.h"

#include "tests/suite/Rewrite.h"

std::vector<CodecCase> alarmCodecs()
{
    return {
        // clang-format off
        // clang-format on
    };
}
