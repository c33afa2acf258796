#include "Table.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <map>

#include <benchmark/benchmark.h>

namespace {

constexpr const char *extraCounter = "extra";

std::string sideName(const Figure &figure, bool ours)
{
    return figure.name.toStdString() + (ours ? "/ours" : "/floor");
}

/// Keeps the measurements of each side and prints nothing.
class Collector : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs) {
            failed = failed || run.error_occurred;
            if (run.error_occurred)
                std::fprintf(stderr, "%s: %s\n", run.run_name.function_name.c_str(), run.error_message.c_str());
            else if (run.run_type == Run::RT_Iteration)
                m_samples[run.run_name.function_name].push_back(
                    {run.real_accumulated_time * 1000, run.counters.at(extraCounter).value});
        }
    }

    bool has(const Figure &figure) const
    {
        return m_samples.contains(sideName(figure, true)) && m_samples.contains(sideName(figure, false));
    }
    double median(const Figure &figure, bool ours, double Sample::*value) const
    {
        std::vector<double> values;
        for (const Sample &sample : m_samples.at(sideName(figure, ours)))
            values.push_back(sample.*value);
        const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
        std::nth_element(values.begin(), middle, values.end());
        return *middle;
    }
    bool failed = false;

private:
    std::map<std::string, std::vector<Sample>> m_samples;
};

void measure(benchmark::State &state, const std::function<Sample()> &side)
try {
    for ([[maybe_unused]] auto once : state) {
        const Sample sample = side();
        state.SetIterationTime(sample.milliseconds / 1000);
        state.counters[extraCounter] = sample.extra;
    }
} catch (const std::exception &error) {
    state.SkipWithError(error.what());
}

void printRow(const Collector &collector, const Figure &figure, const QString &name, double Sample::*value,
              double target)
{
    const double ours = collector.median(figure, true, value), floor = collector.median(figure, false, value);
    std::printf("%-42s %10.2f %10.2f %8.2f %8.2f\n", qPrintable(name), ours, floor, ours / floor, target);
}

} // namespace

bool measureAndPrint(const std::vector<Figure> &figures, int argc, char **argv)
{
    std::vector<char *> arguments(argv, argv + argc);
    char interleaved[] = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, interleaved);
    auto count = int(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    for (const Figure &figure : figures)
        for (const bool ours : {true, false})
            benchmark::RegisterBenchmark(sideName(figure, ours).c_str(), measure, ours ? figure.ours : figure.floor)
                ->UseManualTime()
                ->Iterations(1)
                ->Repetitions(figure.repetitions);
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    benchmark::ClearRegisteredBenchmarks(); // they own widgets, which must be destroyed before the application object
    if (collector.failed)
        return false;
    std::printf("%-42s %10s %10s %8s %8s\n", "Figure (medians)", "ours", "floor", "ratio", "target");
    for (const Figure &figure : figures) {
        if (!collector.has(figure))
            continue;
        printRow(collector, figure, figure.name, &Sample::milliseconds, figure.target);
        if (!figure.extraName.isEmpty())
            printRow(collector, figure, figure.extraName, &Sample::extra, figure.extraTarget);
    }
    return true;
}
