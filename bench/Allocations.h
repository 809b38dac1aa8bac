#pragma once

#include <cstddef>

/// How often the calling thread has asked `operator new` for memory, in this program and all libraries that it uses.
std::size_t allocationsOfThisThread();
