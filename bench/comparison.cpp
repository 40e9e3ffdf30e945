#include "comparison.h"

#include <algorithm>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <map>
#include <nlohmann/json.hpp>
#include <unistd.h>

namespace {

struct Comparison {
    std::string what;
    const char* floorIs;
    double goal;
    std::vector<int> sizes;
};

const char* const Least = "least";

std::vector<Comparison> comparisons;

std::string nameOf(const std::string& what, bool floor)
{
    return what + (floor ? "/floor/" : "/measured/");
}

/// Prints as usual, and keeps the least of each benchmark's repetitions: other work of the
/// machine only adds time.
class Results : public benchmark::ConsoleReporter {
public:
    Results()
        : ConsoleReporter(isatty(STDOUT_FILENO) ? OO_ColorTabular : OO_Tabular)
    {
    }
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            const auto value = run.counters.find("value");
            if (run.aggregate_name == Least)
                m_least[run.run_name.function_name + run.run_name.args] =
                    value == run.counters.end() ? run.GetAdjustedCPUTime() : double(value->second);
        }
        ConsoleReporter::ReportRuns(runs);
    }
    /// NaN if a side was not run.
    double ratio(const std::string& what, int size)
    {
        return m_least[nameOf(what, false) + std::to_string(size)]
            / m_least[nameOf(what, true) + std::to_string(size)];
    }

private:
    std::map<std::string, double> m_least;
};

} // namespace

void compare(const char* what, const char* floorIs, double goal, const std::vector<int>& sizes,
    const Sides& sides)
{
    comparisons.push_back({what, floorIs, goal, sizes});
    for (const bool floor : {false, true})
        for (const int size : sizes)
            benchmark::RegisterBenchmark(nameOf(what, floor).c_str(), sides, floor)
                ->Arg(size)
                ->ComputeStatistics(Least, [](const std::vector<double>& repetitions) {
                    return *std::min_element(repetitions.begin(), repetitions.end());
                });
}

Sides against(double floor, const std::function<void(benchmark::State& state)>& measured)
{
    return [floor, measured](benchmark::State& state, bool isFloor) {
        if (!isFloor)
            return measured(state);
        while (state.KeepRunning()) { }
        state.counters["value"] = floor;
    };
}

bool runComparisons(const char* jsonFile)
{
    Results results;
    // One after the other: mixed, the heap of one would slow the next.
    for (const Comparison& compared : comparisons)
        benchmark::RunSpecifiedBenchmarks(&results, '^' + compared.what + '/');
    nlohmann::ordered_json document;
    bool allMet = true;
    std::cout << "\n| what | floor | access points: times the floor | goal |\n|---|---|---|---|\n"
              << std::fixed << std::setprecision(2);
    for (const Comparison& compared : comparisons) {
        std::cout << "| " << compared.what << " | " << compared.floorIs << " |";
        double ratio = 0;
        for (const int size : compared.sizes) {
            ratio = results.ratio(compared.what, size);
            std::cout << ' ' << size << ": " << ratio;
            document[compared.what][std::to_string(size)] = ratio;
        }
        const bool met = ratio <= compared.goal;
        allMet = allMet && met;
        std::cout << " | " << compared.goal << (met ? "" : " missed") << " |\n";
    }
    std::ofstream(jsonFile) << document.dump(2) << '\n';
    return allMet;
}
