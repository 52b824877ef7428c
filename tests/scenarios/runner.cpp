#include <algorithm>
#include <clocale>
#include <cstdio>
#include <string>

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>

#include "answer_compare.h"
#include "batch_run.h"
#include "scenario_file.h"

// Runs every scenario through vanzer-batch.
// VANZER_SCENARIOS_PENDING=1 runs the pending ones too; VANZER_SCENARIOS_REWRITE=1 writes the answers that differ into
// the scenario files.

namespace scenarios {

namespace {

constexpr int differencesShown = 12;

bool isWanted(const char* variable) {
    return qEnvironmentVariable(variable) == QStringLiteral("1");
}

std::string plain(const QString& text) {
    return text.toStdString();
}

// The command itself is always part of what is expected, so that answers can't slip by a line.
QJsonObject expectedAnswer(const Step& step) {
    QJsonObject expected = QJsonDocument::fromJson(step.expected).object();
    expected.insert(QStringLiteral("cmd"), QString::fromUtf8(step.command));
    return expected;
}

QByteArray withoutCommand(const QByteArray& answer) {
    QJsonObject object = QJsonDocument::fromJson(answer).object();
    object.remove(QStringLiteral("cmd"));
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

// What is wrong with the answer to a command of an example.
QString complaintOfExample(const Step& step, const QByteArray& answer, const QJsonObject& got) {
    const QByteArray piece = "~ ";
    if (step.expected.startsWith(piece))
        return answer.contains(step.expected.mid(piece.size())) ? QString() : QString::fromUtf8(answer);
    const QJsonObject expected = QJsonDocument::fromJson(step.expected).object();
    if (expected.isEmpty() != step.expected.isEmpty())
        return QStringLiteral("the expected answer is not a JSON object");
    QJsonObject told;
    for (const QString& key : expected.keys() + QStringList{QStringLiteral("error"), QStringLiteral("refused")}) {
        if (got.contains(key))
            told.insert(key, got.value(key));
    }
    return differences(expected, told).join(QStringLiteral("\n  "));
}

// What is wrong with the answer to one command, one difference a line; empty when it is as expected.
QString complaint(const Step& step, const QByteArray& answer) {
    QJsonParseError error{};
    const QJsonObject got = QJsonDocument::fromJson(answer, &error).object();
    if (error.error != QJsonParseError::NoError)
        return QStringLiteral("not JSON: ") + QString::fromUtf8(answer);
    if (step.example)
        return complaintOfExample(step, answer, got);
    if (step.expected.isEmpty())
        return QStringLiteral("no answer is expected here; the program gave ") +
               QString::fromUtf8(withoutCommand(answer));
    if (!QJsonDocument::fromJson(step.expected).isObject())
        return QStringLiteral("the expected answer is not a JSON object");
    const QStringList found = differences(expectedAnswer(step), got);
    QStringList shown = found.mid(0, differencesShown);
    if (found.size() > shown.size())
        shown.append(QStringLiteral("and %1 more").arg(found.size() - shown.size()));
    return shown.join(QStringLiteral("\n  "));
}

class ScenarioTest : public testing::Test {
  public:
    explicit ScenarioTest(Scenario scenario) : m_scenario(std::move(scenario)) {}

    void TestBody() override {
        ASSERT_TRUE(m_scenario.fault.isEmpty()) << plain(m_scenario.path + u' ' + m_scenario.fault);
        if (!m_scenario.pending.isEmpty() && !isWanted("VANZER_SCENARIOS_PENDING"))
            GTEST_SKIP() << plain(m_scenario.name() + QStringLiteral(", pending: ") + m_scenario.pending);
        ASSERT_NE(std::setlocale(LC_ALL, plain(m_scenario.locale).c_str()), nullptr)
            << "locale not installed: " << plain(m_scenario.locale);
        const BatchRun run = runBatch(QStringLiteral(VANZER_BATCH_PROGRAM), m_scenario);
        if (isWanted("VANZER_SCENARIOS_REWRITE") && !m_scenario.steps.front().example)
            rewrite(run);
        else
            compare(run);
    }

  private:
    void compare(const BatchRun& run) const {
        const qsizetype answered = std::min(run.answers.size(), m_scenario.steps.size());
        for (qsizetype i = 0; i < answered; ++i) {
            const Step& step = m_scenario.steps.at(i);
            const QString wrong = complaint(step, run.answers.at(i));
            if (!wrong.isEmpty())
                FAIL() << plain(m_scenario.path) << ':' << step.line << ": " << step.command.toStdString() << "\n  "
                       << plain(wrong) << '\n'
                       << run.diagnostics.toStdString();
        }
        ASSERT_TRUE(run.fault.isEmpty()) << plain(run.fault) << '\n' << run.diagnostics.toStdString();
        ASSERT_EQ(run.answers.size(), m_scenario.steps.size()) << "answers and commands";
    }

    void rewrite(const BatchRun& run) {
        ASSERT_TRUE(run.fault.isEmpty()) << plain(run.fault) << '\n' << run.diagnostics.toStdString();
        ASSERT_EQ(run.answers.size(), m_scenario.steps.size()) << "answers and commands";
        int rewritten = 0;
        for (qsizetype i = 0; i < m_scenario.steps.size(); ++i) {
            Step& step = m_scenario.steps[i];
            if (complaint(step, run.answers.at(i)).isEmpty())
                continue;
            step.expected = withoutCommand(run.answers.at(i));
            ++rewritten;
        }
        if (rewritten == 0)
            return;
        ASSERT_TRUE(rewriteScenario(m_scenario)) << plain(m_scenario.path);
        GTEST_SKIP() << plain(m_scenario.name()) << ", answers rewritten: " << rewritten;
    }

    Scenario m_scenario;
};

void registerScenario(const char* suite, const Scenario& scenario) {
    const QString name = scenario.name().replace(u'-', u'_'); // a filter reads "-" as "not"
    testing::RegisterTest(suite, plain(name).c_str(), nullptr, nullptr, __FILE__, __LINE__,
                          [scenario]() -> testing::Test* {
                              return new ScenarioTest(scenario); // gtest deletes it
                          });
}

// Registers one test per scenario file and one per page with examples, and returns the number of the former.
qsizetype registerScenarios() {
    const QDir folder(QStringLiteral(VANZER_SCENARIO_DIR));
    const QStringList files = folder.entryList({QStringLiteral("*.txt")}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        registerScenario("Scenarios", readScenario(folder.filePath(file)));
    for (const char* const page : {"batch.md", "manuale.md"})
        registerScenario("Examples", readExamples(QDir(QStringLiteral(VANZER_DOCS)).filePath(QLatin1StringView(page))));
    return files.size();
}

} // namespace

} // namespace scenarios

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    if (scenarios::registerScenarios() == 0) {
        std::fputs("vanzer_scenarios: no scenarios found\n", stderr);
        return 1;
    }
    return RUN_ALL_TESTS();
}
