// Throws mutated inputs at a reader: vanzer_fuzz TARGET [--seconds N] [--from NUMBER] CORPUS-FOLDER
//                                    vanzer_fuzz TARGET FILE...
//
// Inputs are numbered, the corpus itself comes first; the same number is the same input. The input at hand lies in a
// file that is gone again when all went well: what broke the reader is left in it, to be run alone and to join the
// corpus. Without --seconds it runs until it is stopped.

#include <algorithm>
#include <cstdio>
#include <limits>

#include <unistd.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include "fuzz_target.h"
#include "mutation.h"

namespace {

using namespace vanzer::fuzz;

constexpr unsigned longestRun = 20; // s; one that takes longer hangs
constexpr int badUsage = 2;

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

std::vector<QByteArray> corpusOf(const QString& folder) {
    std::vector<QByteArray> corpus;
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files, QDir::Name))
        corpus.push_back(contents(file.filePath()));
    return corpus;
}

/// The input that is being run, on the disk.
class InputFile {
  public:
    explicit InputFile(const char* target)
        : file_(
              QDir::temp().filePath(QStringLiteral("vanzer_fuzz_%1_%2").arg(QLatin1StringView(target)).arg(getpid()))) {
        static_cast<void>(file_.open(QIODevice::ReadWrite | QIODevice::Truncate | QIODevice::Unbuffered));
    }
    [[nodiscard]] QString path() const { return file_.fileName(); }
    void keep(const QByteArray& input) {
        file_.resize(input.size());
        file_.seek(0);
        file_.write(input);
    }
    void remove() { file_.remove(); }

  private:
    QFile file_;
};

void runOne(const Target& target, const QByteArray& input) {
    alarm(longestRun);
    target.run(input);
    alarm(0);
}

int fuzz(const Target& target, std::vector<QByteArray> corpus, double seconds, std::uint64_t from) {
    InputFile file(target.name);
    std::printf("%s: %zu files of the corpus; an input that breaks it stays in %s\n", target.name, corpus.size(),
                file.path().toLocal8Bit().constData());
    std::fflush(stdout);
    Mutator mutator(std::move(corpus));
    QElapsedTimer clock;
    clock.start();
    std::uint64_t number = from;
    for (; static_cast<double>(clock.elapsed()) < seconds * 1000; ++number) {
        const QByteArray input = mutator.input(number);
        file.keep(input);
        runOne(target, input);
    }
    file.remove();
    std::printf("%s: inputs %llu to %llu held\n", target.name, static_cast<unsigned long long>(from),
                static_cast<unsigned long long>(number) - 1);
    return number > from ? 0 : 1;
}

int usage() {
    std::fputs("vanzer_fuzz TARGET [--seconds N] [--from NUMBER] CORPUS-FOLDER\nvanzer_fuzz TARGET FILE...\ntargets:",
               stderr);
    for (const Target& target : targets())
        std::fprintf(stderr, " %s", target.name);
    std::fputs("\n", stderr);
    return badUsage;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOptions({{QStringLiteral("seconds"), QString(), QStringLiteral("N")},
                       {QStringLiteral("from"), QString(), QStringLiteral("NUMBER"), QStringLiteral("0")}});
    if (!parser.parse(QCoreApplication::arguments()) || parser.positionalArguments().size() < 2)
        return usage();
    QStringList arguments = parser.positionalArguments();
    const QString name = arguments.takeFirst();
    const auto target =
        std::ranges::find_if(targets(), [&name](const Target& t) { return name == QLatin1StringView(t.name); });
    if (target == targets().end())
        return usage();
    if (!QFileInfo(arguments.first()).isDir()) {
        for (const QString& file : arguments)
            runOne(*target, contents(file));
        return 0;
    }
    std::vector<QByteArray> corpus = corpusOf(arguments.first());
    if (corpus.empty())
        return usage();
    const double seconds = parser.isSet(QStringLiteral("seconds")) ? parser.value(QStringLiteral("seconds")).toDouble()
                                                                   : std::numeric_limits<double>::infinity();
    return fuzz(*target, std::move(corpus), seconds, parser.value(QStringLiteral("from")).toULongLong());
}
