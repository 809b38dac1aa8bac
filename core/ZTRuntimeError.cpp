#include "core/ZTRuntimeError.h"

ZTRuntimeError::ZTRuntimeError(const char* const& message) : message_(message != nullptr ? message : "")
{
}

ZTRuntimeError::~ZTRuntimeError() noexcept = default;

const char* ZTRuntimeError::what() const noexcept
{
    return message_.c_str();
}
