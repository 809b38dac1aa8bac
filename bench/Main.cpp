#include "bench/Benchmarks.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <thread>

namespace
{

/// Keeps the lines that readers print out of the results: these stay where standard output led to, those go nowhere.
class QuietReaders
{
public:
    QuietReaders()
    {
        if (!results_.is_open() || std::freopen("/dev/null", "w", stdout) == nullptr) return;
        previous_ = std::cout.rdbuf(results_.rdbuf());
    }
    QuietReaders(const QuietReaders&) = delete;
    QuietReaders& operator=(const QuietReaders&) = delete;
    ~QuietReaders()
    {
        if (previous_ != nullptr) std::cout.rdbuf(previous_);
    }

private:
    std::ofstream results_{"/dev/stdout", std::ios::app};
    std::streambuf* previous_ = nullptr;
};

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;

    const QuietReaders quiet;
    try
    {
        addDeviceBaseInfoList();
        addNTPParam();
        addCameraDeviceList();
        addDeviceExAbility();
        addLiveVideoLayoutList();
        addMotionDetectionEventV2();
        addVideoStreamRequest();
        addI3GPolicyParam();
        addIntelligenceAnalyseAbility();
        addSnapshotPolicy();
        addSafePointer();
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "paramxml_bench: %s\n", error.what());
        return EXIT_FAILURE;
    }

    // Until its first thread starts, a process allocates and counts more cheaply than it ever will afterwards.
    std::thread([] {}).join();

    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return EXIT_SUCCESS;
}
