#pragma once

#include <exception>
#include <string>

/// The one exception of this library: a `SafePointer` was used that holds nothing, or whose count is not its own.
class ZTRuntimeError : public std::exception
{
public:
    /// @param message What went wrong; a null text gives an empty message.
    explicit ZTRuntimeError(const char* const& message);
    ~ZTRuntimeError() noexcept override;

    /// The message; valid as long as the error lives.
    const char* what() const noexcept override;

private:
    std::string message_;
};
