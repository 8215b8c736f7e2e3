// vantle_bench [--benchmark_filter=...]: measures, and prints the table of all at the end. Works in
// a directory below the present one, which should lie on the disk that is meant. Exit code 1 when a
// measure misses its goal.
#include "TableReporter.h"

#include <QGuiApplication>

#include <cstdio>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // texts are drawn, but nothing is shown
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    vantle::bench::TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\n%s", reporter.table().c_str());
    return reporter.allMet() ? 0 : 1;
}
