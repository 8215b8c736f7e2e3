#include "TableReporter.h"

#include "Comparison.h"

#include <array>
#include <cstdio>

namespace vantle::bench {

namespace {

template <typename... Values>
std::string formatted(const char* format, Values... values) {
    std::array<char, 128> text{};
    std::snprintf(text.data(), text.size(), format, values...);
    return text.data();
}

std::string time(double seconds) {
    if (seconds < 1e-6) return formatted("%.1f ns", seconds * 1e9);
    if (seconds < 1e-3) return formatted("%.1f µs", seconds * 1e6);
    if (seconds < 1) return formatted("%.2f ms", seconds * 1e3);
    return formatted("%.2f s", seconds);
}

std::string amount(double value, Goal::Kind kind) {
    return kind == Goal::Kind::BytesEach ? formatted("%.1f B", value) : time(value);
}

std::string goalText(double limit, Goal::Kind kind) {
    switch (kind) {
    case Goal::Kind::Ratio:
        return formatted("≤ %.2f", limit);
    case Goal::Kind::NanosecondsEach:
        return limit < 1e6 ? formatted("< %.0f ns each", limit)
                           : formatted("< %.0f ms", limit * 1e-6);
    case Goal::Kind::BytesEach:
        return formatted("≤ %.0f B each", limit);
    }
    return {};
}

bool keeps(double ours, double bound, double limit, Goal::Kind kind) {
    switch (kind) {
    case Goal::Kind::Ratio:
        return ours <= limit * bound;
    case Goal::Kind::NanosecondsEach:
        return ours * 1e9 < limit;
    case Goal::Kind::BytesEach:
        return ours <= limit;
    }
    return false;
}

} // namespace

void TableReporter::ReportRuns(const std::vector<Run>& runs) {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
        if (run.error_occurred) {
            m_allMet = false;
            m_rows.push_back("| " + run.run_name.function_name + " | " + run.error_message +
                             " | | | | no |");
        }
        if (!run.counters.contains("ours")) continue;
        const double ours = run.counters.at("ours");
        const double bound = run.counters.at("bound");
        const double limit = run.counters.at("limit");
        const auto kind = static_cast<Goal::Kind>(static_cast<int>(run.counters.at("kind")));
        const bool met = keeps(ours, bound, limit, kind);
        m_allMet = m_allMet && met;
        m_rows.push_back("| " + run.run_name.function_name + " | " + amount(ours, kind) + " | " +
                         amount(bound, kind) + " | " + formatted("%.2f", ours / bound) + " | " +
                         goalText(limit, kind) + " | " + (met ? "yes" : "no") + " |");
    }
}

std::string TableReporter::table() const {
    std::string text =
        "| measure | ours | bound | ratio | goal | met |\n|---|---|---|---|---|---|\n";
    for (const std::string& row : m_rows)
        text += row + '\n';
    return text;
}

} // namespace vantle::bench
