// SPDX-License-Identifier: MIT
#include <algorithm>
#include <clocale>
#include <filesystem>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>

#include "answer_compare.h"
#include "scenario_file.h"

// Runs every scenario, and every page with examples, through vanzer-batch, each in a fresh program directory.
// VANZER_SCENARIOS_REWRITE=1 writes the answers that differ into the scenario files.

namespace scenarios {

namespace {

constexpr int longestRun = 300'000; // ms; builds with sanitizers are slow
constexpr int differencesShown = 12;

std::string plain(const QString& text) {
    return text.toStdString();
}

/// The answers to the scenario's commands. The path of the program's directory is replaced by "{DIR}".
QList<QByteArray> answersOf(const Scenario& scenario) {
    const QTemporaryDir scratch;
    const QString directory = QFileInfo(scratch.path()).canonicalFilePath();
    if (!scenario.filesFolder.isEmpty())
        std::filesystem::copy(QFileInfo(scenario.path).dir().filePath(scenario.filesFolder).toStdString(),
                              directory.toStdString());
    QProcess batch;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), scenario.locale);
    batch.setProcessEnvironment(environment);
    batch.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    batch.start(QStringLiteral(VANZER_BATCH_PROGRAM), {QStringLiteral("--dir"), directory});
    for (const Step& step : scenario.steps)
        batch.write(step.command + '\n');
    batch.closeWriteChannel();
    const bool ended = batch.waitForFinished(longestRun);
    EXPECT_TRUE(ended && batch.exitStatus() == QProcess::NormalExit) << plain(batch.errorString());
    EXPECT_EQ(batch.exitCode(), 0);
    batch.kill();
    QList<QByteArray> answers = batch.readAllStandardOutput().replace(directory.toUtf8(), "{DIR}").split('\n');
    if (answers.last().isEmpty())
        answers.removeLast();
    return answers;
}

/// The differences in the answer to one command, one a line. Empty if it is as expected. The command belongs to every
/// answer, so that answers can't slip by a line.
QString complaint(const Step& step, bool example, const QByteArray& answer) {
    const QByteArray piece = "~ ";
    if (example && step.expected.startsWith(piece))
        return answer.contains(step.expected.mid(piece.size())) ? QString() : QString::fromUtf8(answer);
    const QJsonDocument written = QJsonDocument::fromJson(step.expected);
    if (!written.isObject() && !(example && step.expected.isEmpty()))
        return QStringLiteral("no JSON object is expected here; the program gave ") + QString::fromUtf8(answer);
    QJsonObject expected = written.object();
    expected.insert(u"cmd", QString::fromUtf8(step.command));
    QJsonObject got = QJsonDocument::fromJson(answer).object();
    for (const QString& key : got.keys()) {
        if (example && !expected.contains(key) && key != u"error" && key != u"refused")
            got.remove(key);
    }
    return differences(expected, got).mid(0, differencesShown).join(QStringLiteral("\n  "));
}

QByteArray withoutCommand(const QByteArray& answer) {
    QJsonObject object = QJsonDocument::fromJson(answer).object();
    object.remove(u"cmd");
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

class ScenarioTest : public testing::Test {
  public:
    explicit ScenarioTest(Scenario scenario) : m_scenario(std::move(scenario)) {}

    void TestBody() override {
        ASSERT_TRUE(m_scenario.fault.isEmpty()) << plain(m_scenario.path) << ": " << plain(m_scenario.fault);
        ASSERT_NE(std::setlocale(LC_ALL, plain(m_scenario.locale).c_str()), nullptr)
            << "locale not installed: " << plain(m_scenario.locale);
        const bool rewrites = qEnvironmentVariable("VANZER_SCENARIOS_REWRITE") == u"1" && !m_scenario.examples;
        const QList<QByteArray> answers = answersOf(m_scenario);
        int rewritten = 0;
        for (qsizetype i = 0; i < std::min(answers.size(), m_scenario.steps.size()); ++i) {
            Step& step = m_scenario.steps[i];
            const QString wrong = complaint(step, m_scenario.examples, answers.at(i));
            if (wrong.isEmpty())
                continue;
            if (!rewrites)
                FAIL() << plain(m_scenario.path) << ':' << step.line << ": " << step.command.toStdString() << "\n  "
                       << plain(wrong);
            step.expected = withoutCommand(answers.at(i));
            ++rewritten;
        }
        ASSERT_EQ(answers.size(), m_scenario.steps.size()) << "answers and commands";
        if (rewritten > 0 && !HasFailure()) {
            ASSERT_TRUE(rewriteScenario(m_scenario)) << plain(m_scenario.path);
            GTEST_SKIP() << plain(m_scenario.path) << ", answers rewritten: " << rewritten;
        }
    }

  private:
    Scenario m_scenario;
};

void registerScenario(const char* suite, const QString& path) {
    testing::RegisterTest(suite, plain(QFileInfo(path).completeBaseName()).c_str(), nullptr, nullptr, __FILE__,
                          __LINE__, [scenario = readScenario(path)]() -> testing::Test* {
                              return new ScenarioTest(scenario); // gtest deletes it
                          });
}

} // namespace

} // namespace scenarios

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    const QDir folder(QStringLiteral(VANZER_SCENARIO_DIR));
    for (const QString& file : folder.entryList({QStringLiteral("*.txt")}))
        scenarios::registerScenario("Scenarios", folder.filePath(file));
    for (const char* const page : {VANZER_DOCS "/batch.md", VANZER_DOCS "/manuale.md"})
        scenarios::registerScenario("Examples", QString::fromUtf8(page));
    return RUN_ALL_TESTS();
}
