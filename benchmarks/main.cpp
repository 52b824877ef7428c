// SPDX-License-Identifier: MIT
// vanzer_benchmarks: prints a table with a row for each measure that --benchmark_filter selects.

#include <cstdio>

#include <QApplication>

#include <benchmark/benchmark.h>

namespace {

using Run = benchmark::BenchmarkReporter::Run;

double counter(const Run& run, const char* name) {
    const auto found = run.counters.find(name);
    return found == run.counters.end() ? 0 : found->second.value;
}

QString time(double seconds) {
    if (seconds == 0)
        return {};
    const double ms = seconds * 1000;
    return QString::number(ms, 'f', ms < 0.1 ? 4 : ms < 10 ? 2 : ms < 100 ? 1 : 0) + QStringLiteral(" ms");
}

QString memory(double megabytes) {
    constexpr double most = 150;
    const QString text = QString::number(megabytes, 'f', 0) + QStringLiteral(" MB");
    return megabytes == 0 ? QString() : megabytes <= most ? text : QStringLiteral("**") + text + QStringLiteral("**");
}

/// The limit and whether it is met, as in "at most 1.5".
QString aim(const Run& run) {
    const double ratio = counter(run, "ratio");
    const double most = counter(run, "atMost");
    const double least = counter(run, "atLeast");
    if (most == 0 && least == 0)
        return QStringLiteral(" |");
    const bool met = (most == 0 || ratio <= most) && (least == 0 || ratio >= least);
    return QStringLiteral("%1 %2 | %3")
        .arg(most != 0 ? QStringLiteral("at most") : QStringLiteral("at least"))
        .arg(most != 0 ? most : least)
        .arg(met ? QStringLiteral("yes") : QStringLiteral("**no**"));
}

/// | work | time | against | time | ratio | aim | met | peak memory |
class Table : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context& /*context*/) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.error_occurred) {
                std::printf("| %s | failed: %s | | | | | | |\n", run.benchmark_name().c_str(),
                            run.error_message.c_str());
                continue;
            }
            const QStringList sides = QString::fromStdString(run.report_label).split(u'|');
            const double ratio = counter(run, "ratio");
            const QString row =
                QStringLiteral("| %1 | %2 | %3 | %4 | %5 | %6 | %7 |")
                    .arg(sides[0].trimmed(), time(counter(run, "ours")), sides[1].trimmed(),
                         time(counter(run, "theirs")), ratio == 0 ? QString() : QString::number(ratio, 'f', 2),
                         aim(run), memory(counter(run, "peak")));
            std::printf("%s\n", row.toUtf8().constData());
        }
        std::fflush(stdout);
    }
};

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    Table table;
    return benchmark::RunSpecifiedBenchmarks(&table) == 0 ? 1 : 0;
}
