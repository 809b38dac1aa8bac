#pragma once

#include "bench/Allocations.h"

#include <benchmark/benchmark.h>
#include <stdexcept>
#include <string>

/// A way to write a record as a text and to read it back.
template <class Record>
struct Way
{
    std::string (*write)(const Record& record);
    bool (*read)(const std::string& text, Record& record);
};

/// Never inlined: whoever counts instructions counts those of this function.
template <class Step>
[[gnu::noinline]] void once(const Step& step)
{
    step();
}

/// Repeats a step, and counts its allocations.
template <class Step>
void measure(benchmark::State& state, const Step& step)
{
    const std::size_t before = allocationsOfThisThread();
    for (auto _ : state)
        once(step);
    const double allocations = static_cast<double>(allocationsOfThisThread() - before);
    state.counters["allocations"] = benchmark::Counter(allocations, benchmark::Counter::kAvgIterations);
}

template <class Step>
benchmark::internal::Benchmark* addBenchmark(const std::string& name, const Step& step)
{
    return benchmark::RegisterBenchmark(name.c_str(), [step](benchmark::State& state) { measure(state, step); });
}

inline void expect(bool condition, const std::string& document, const char* complaint)
{
    if (!condition) throw std::runtime_error(document + ": " + complaint);
}

/// Raises `std::runtime_error` unless both ways write the same text of @p record, and read the same from it and from
/// @p emptyText.
template <class Record>
void checkSameResults(const std::string& document, const Record& record, const std::string& emptyText,
                      const Way<Record>& floor, const Way<Record>& paramxml)
{
    const std::string fullText = floor.write(record);
    expect(paramxml.write(record) == fullText, document, "the texts differ");

    for (const std::string& text : {fullText, emptyText})
    {
        Record expected;
        Record actual;
        expect(floor.read(text, expected) && paramxml.read(text, actual), document, "a text cannot be read");
        // Whatever is in a record is in its text.
        const std::string expectedText = floor.write(expected);
        expect(floor.write(actual) == expectedText, document, "the records differ");
        expect(text != fullText || expectedText == fullText, document, "a part of the text is not read");
    }
}

template <class Record>
void addWay(const std::string& document, const std::string& name, const Record& record, const Way<Record>& way)
{
    const auto write = [record, way]
    {
        std::string text = way.write(record);
        benchmark::DoNotOptimize(text);
    };
    const auto read = [text = way.write(record), way]
    {
        Record result;
        way.read(text, result);
        benchmark::DoNotOptimize(result);
    };
    addBenchmark(document + "/write/" + name, write);
    addBenchmark(document + "/read/" + name, read);
}

/// Adds the benchmarks of one document: writing and reading, by hand on bare TinyXML and by the library.
/// @param emptyText The document without any attribute.
template <class Record>
void compare(const std::string& document, const Record& record, const std::string& emptyText, const Way<Record>& floor,
             const Way<Record>& paramxml)
{
    checkSameResults(document, record, emptyText, floor, paramxml);
    addWay(document, "floor", record, floor);
    addWay(document, "paramxml", record, paramxml);
}
