// SPDX-License-Identifier: MIT
#include <utility>

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include "answer_compare.h"
#include "scenario_file.h"

namespace scenarios {

namespace {

TEST(AnswerCompare, SeesWhatDiffers) {
    struct Case {
        const char* idea;
        const char* expected;
        const char* got;
        const char* difference; ///< where the only difference is; empty for none
    };
    const Case cases[] = {
        {"equal", R"({"a":[1,{"b":null}]})", R"({"a":[1.0,{"b":null}]})", ""},
        {"another value", R"({"a":[1,{"b":"x"}]})", R"({"a":[1,{"b":"y"}]})", "a[1].b"},
        {"a key too many", R"({"a":1})", R"({"a":1,"refused":true})", "refused"},
        {"a key missing", R"({"boxes":[]})", R"({})", "boxes"},
        {"a row missing", R"({"cells":[["1"],["2"]]})", R"({"cells":[["1"]]})", "cells[1]"},
        {"another type", R"({"text":"1"})", R"({"text":1})", "text"},
        {"any error", R"({"error":"*"})", R"({"error":"x"})", ""},
        {"any error, but one", R"({"error":"*"})", R"({})", "error"},
        {"page figures within the tolerance", R"({"pages":[[{"x":1.00}]]})", R"({"pages":[[{"x":1.01}]]})", ""},
        {"page figures beyond it", R"({"pages":[[{"x":1.00}]]})", R"({"pages":[[{"x":1.02}]]})", "pages[0][0].x"},
        {"figures elsewhere", R"({"Coefficiente":1.00})", R"({"Coefficiente":1.01})", "Coefficiente"},
    };
    for (const Case& c : cases) {
        const auto object = [](const char* text) { return QJsonDocument::fromJson(text).object(); };
        const QString found = differences(object(c.expected), object(c.got)).join(u'\n');
        EXPECT_EQ(found.section(u':', 0, 0), QString::fromUtf8(c.difference)) << c.idea;
    }
}

TEST(ScenarioFile, IsReadAndRewrittenWithAllButItsAnswersKept) {
    const QTemporaryDir scratch;
    const QByteArray text = "# locale: it_IT.UTF-8\n\nset txtTappa \n=> {}\n# locale: C\nvars\nget x\n=> {\"a\":1}\n";
    QFile file(scratch.filePath(QStringLiteral("giro.txt")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush());
    Scenario scenario = readScenario(file.fileName());
    EXPECT_EQ(scenario.fault, QString());
    EXPECT_EQ(scenario.locale, QStringLiteral("it_IT.UTF-8"));
    ASSERT_EQ(scenario.steps.size(), 3);
    EXPECT_EQ(scenario.steps.at(0).command, "set txtTappa ");
    EXPECT_EQ(scenario.steps.at(2).line, 7);
    scenario.steps[1].expected = "{\"b\":2}";
    ASSERT_TRUE(rewriteScenario(scenario));
    QFile again(file.fileName());
    ASSERT_TRUE(again.open(QIODevice::ReadOnly));
    EXPECT_EQ(again.readAll(), QByteArray(text).replace("vars\n", "vars\n=> {\"b\":2}\n"));
}

TEST(ScenarioFile, NamesItsFault) {
    const QTemporaryDir scratch;
    const std::pair<const char*, QByteArray> files[] = {{"testa.txt", "# only a header\n"},
                                                        {"risposta.txt", "=> {}\nvars\n"},
                                                        {"due.txt", "vars\n=> {}\n=> {}\n"},
                                                        {"vuota.md", "vars\n"},
                                                        {"aperta.md", "```vanzer-batch\nvars\n"}};
    for (const auto& [name, text] : files) {
        QFile file(scratch.filePath(QString::fromUtf8(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.flush());
        EXPECT_NE(readScenario(file.fileName()).fault, QString()) << name;
    }
    EXPECT_NE(readScenario(scratch.filePath(QStringLiteral("manca.txt"))).fault, QString());
}

} // namespace

} // namespace scenarios
