#include "bench/Benchmarks.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <thread>

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return EXIT_FAILURE;

    try
    {
        addDeviceBaseInfoList();
        addNTPParam();
        addCameraDeviceList();
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
