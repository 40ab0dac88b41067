// What the benchmarks share: medians of loops run in turns, so that a figure and the baseline it
// is compared with see the same load of the machine, and one CSV line per figure and size for
// the plots of the cost per item.
#pragma once

#include <windows.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

namespace bench {

using Clock = std::chrono::steady_clock;

inline double Median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

// Median seconds of each loop over `runs` turns; prepare runs untimed before every loop.
inline std::vector<double> SecondsInTurns(
    const std::vector<std::function<void()>>& loops, int runs, const std::function<void()>& prepare = [] {})
{
    std::vector<std::vector<double>> seconds(loops.size());
    for (int run = 0; run < runs; ++run)
        for (size_t i = 0; i < loops.size(); ++i)
        {
            prepare();
            Clock::time_point start = Clock::now();
            loops[i]();
            seconds[i].push_back(std::chrono::duration<double>(Clock::now() - start).count());
        }
    std::vector<double> medians;
    for (const auto& s : seconds)
        medians.push_back(Median(s));
    return medians;
}

// The process's private bytes: its committed memory of its own, summed over its address space
// (Wine's process counters leave them out).
inline double PrivateBytes()
{
    double bytes = 0;
    MEMORY_BASIC_INFORMATION region;
    for (char* at = nullptr; ::VirtualQuery(at, &region, sizeof(region)) == sizeof(region);
         at = (char*)region.BaseAddress + region.RegionSize)
        if (region.State == MEM_COMMIT && region.Type == MEM_PRIVATE)
            bytes += (double)region.RegionSize;
    return bytes;
}

// bench.csv in the folder of the first argument, when one is given: figure, items, cost per
// item of the figure and of its baseline (microseconds, or bytes for memory), and their ratio.
class Csv
{
public:
    Csv(int argc, char** argv, const char* file)
    {
        if (argc > 1)
            m_file = std::fopen((std::string(argv[1]) + "\\" + file).c_str(), "w");
        if (m_file != nullptr)
            std::fprintf(m_file, "figure,items,per_item,baseline_per_item,ratio\n");
    }
    ~Csv()
    {
        if (m_file != nullptr)
            std::fclose(m_file);
    }
    Csv(const Csv&) = delete;
    Csv& operator=(const Csv&) = delete;

    // total and baseline for all items; a baseline of 0 means none.
    void Add(const char* figure, int items, double total, double baseline = 0)
    {
        if (m_file == nullptr)
            return;
        std::fprintf(m_file, "%s,%d,%.6g,%.6g,%.4g\n", figure, items, total / items, baseline / items,
                     baseline > 0 ? total / baseline : 0.0);
        std::fflush(m_file);
    }

private:
    FILE* m_file = nullptr;
};

}  // namespace bench
