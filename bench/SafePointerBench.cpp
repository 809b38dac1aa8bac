#include "bench/Benchmarks.h"
#include "bench/Comparison.h"
#include "core/SafePointer.h"

namespace
{

struct Object
{
    int value = 0;
};

} // namespace

void addSafePointer()
{
    const auto makeCopyDrop = []
    {
        const SafePointer<Object> pointer(new Object);
        SafePointer<Object> copy(pointer);
        benchmark::DoNotOptimize(copy);
    };
    addBenchmark("SafePointer/make-copy-drop", makeCopyDrop)->ThreadRange(1, 2)->UseRealTime();
}
