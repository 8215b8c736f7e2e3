// Prints each result as it comes, and a table at the end.
#pragma once

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace vantle::bench {

class TableReporter final : public benchmark::ConsoleReporter {
public:
    TableReporter() : ConsoleReporter(OO_None) {}

    void ReportRuns(const std::vector<Run>& runs) override;

    /// The table in Markdown: | measure | ours | bound | ratio | goal | met |
    [[nodiscard]] std::string table() const;

    /// Whether every goal was met.
    [[nodiscard]] bool allMet() const { return m_allMet; }

private:
    std::vector<std::string> m_rows;
    bool m_allMet = true;
};

} // namespace vantle::bench
