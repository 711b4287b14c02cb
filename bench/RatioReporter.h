#pragma once

#include <benchmark/benchmark.h>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

/// Prints the table, and after it ratios of the times that the table shows as CPU, which other programs on
/// the machine disturb least; of those as Time for what runs on several cores (UseRealTime).
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            m_seconds[run.benchmark_name()] =
                (run.run_name.time_type.empty() ? run.GetAdjustedCPUTime() : run.GetAdjustedRealTime()) /
                benchmark::GetTimeUnitMultiplier(run.time_unit);
        }
        ConsoleReporter::ReportRuns(runs);
    }
    /// `per` divides the ratio, for times of that many things more.
    void ratio(const char* what, const std::string& of, const std::string& to, const char* aim,
               double per = 1) const {
        std::printf("%-62s %6.2f   (aim: %s)\n", what, m_seconds.at(of) / m_seconds.at(to) / per, aim);
    }

private:
    std::map<std::string, double> m_seconds;
};
