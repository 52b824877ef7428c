#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include "answer_compare.h"
#include "scenario_file.h"

namespace scenarios {

namespace {

TEST(AnswerCompare, SeesWhatDiffersAndLeavesWhatIsFree) {
    struct Case {
        const char* idea;
        const char* expected;
        const char* got;
        const char* difference; ///< the place of the only one, empty for none
    };
    const Case cases[] = {
        {"equal", R"({"a":[1,{"b":null}]})", R"({"a":[1.0,{"b":null}]})", ""},
        {"another value", R"({"a":[1,{"b":"x"}]})", R"({"a":[1,{"b":"y"}]})", "a[1].b"},
        {"a key too many", R"({"a":1})", R"({"a":1,"refused":true})", "refused"},
        {"a key missing", R"({"boxes":[]})", R"({})", "boxes"},
        {"a row missing", R"({"cells":[["1"],["2"]]})", R"({"cells":[["1"]]})", "cells[1]"},
        {"another type", R"({"text":"1"})", R"({"text":1})", "text"},
        {"place of a control", R"({"reachable":true,"left":0})", R"({"reachable":true,"left":9})", ""},
        {"place of a control inside another answer", R"({"during":{"reachable":true,"top":0}})",
         R"({"during":{"reachable":true,"top":9}})", ""},
        {"free, but to be there", R"({"reachable":true,"left":0})", R"({"reachable":true})", "left"},
        {"a width that is not a control's", R"({"width":1})", R"({"width":2})", "width"},
        {"top row of a grid", R"({"cells":[],"toprow":1})", R"({"cells":[],"toprow":5})", ""},
        {"tool tip without a wording", R"({"tooltip":""})", R"({"tooltip":"x"})", ""},
        {"tool tip with a wording", R"({"tooltip":"x"})", R"({"tooltip":""})", "tooltip"},
        {"any error", R"({"error":"*"})", R"({"error":"x"})", ""},
        {"any error, but one", R"({"error":"*"})", R"({})", "error"},
        {"this error", R"({"error":"x"})", R"({"error":"y"})", "error"},
        {"page figures within the tolerance", R"({"pages":[[{"x":1.00}]]})", R"({"pages":[[{"x":1.01}]]})", ""},
        {"page figures beyond it", R"({"pages":[[{"x":1.00}]]})", R"({"pages":[[{"x":1.02}]]})", "pages[0][0].x"},
        {"figures elsewhere", R"({"Coefficiente":1.00})", R"({"Coefficiente":1.01})", "Coefficiente"},
    };
    for (const Case& c : cases) {
        const auto object = [](const char* text) { return QJsonDocument::fromJson(text).object(); };
        const QStringList found = differences(object(c.expected), object(c.got));
        const QString difference = QString::fromUtf8(c.difference);
        ASSERT_EQ(found.size(), difference.isEmpty() ? 0 : 1) << c.idea;
        if (!found.isEmpty()) {
            EXPECT_TRUE(found.first().startsWith(difference + u':')) << c.idea << ": " << found.first().toStdString();
        }
    }
}

TEST(ScenarioFile, IsReadAndRewrittenWithAllButItsAnswersKept) {
    const QTemporaryDir scratch;
    const QString path = scratch.filePath(QStringLiteral("giro.txt"));
    const QByteArray text = "# a trip\n# locale: it_IT.UTF-8\n# pending: guide\n\n"
                            "set txtTappa \n=> {}\n# locale: C\nvars\nget x\n=> {\"a\":1}\n";
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.write(text);
    file.flush();

    Scenario scenario = readScenario(path);
    EXPECT_EQ(scenario.fault, QString());
    EXPECT_EQ(scenario.locale, QStringLiteral("it_IT.UTF-8"));
    EXPECT_EQ(scenario.pending, QStringLiteral("guide"));
    ASSERT_EQ(scenario.steps.size(), 3);
    EXPECT_EQ(scenario.steps.at(0).command, "set txtTappa ");
    EXPECT_EQ(scenario.steps.at(1).expected, "");
    EXPECT_EQ(scenario.steps.at(2).line, 9);

    scenario.steps[1].expected = "{\"b\":2}";
    ASSERT_TRUE(rewriteScenario(scenario));
    QFile again(path);
    ASSERT_TRUE(again.open(QIODevice::ReadOnly));
    EXPECT_EQ(again.readAll(), QByteArray(text).replace("vars\n", "vars\n=> {\"b\":2}\n"));
}

TEST(ScenarioFile, NamesItsFault) {
    const QTemporaryDir scratch;
    const QString path = scratch.filePath(QStringLiteral("giro.txt"));
    for (const char* text : {"# only a header\n", "=> {}\nvars\n", "vars\n=> {}\n=> {}\n"}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(text);
        file.close();
        EXPECT_NE(readScenario(path).fault, QString()) << text;
    }
    EXPECT_NE(readScenario(scratch.filePath(QStringLiteral("missing.txt"))).fault, QString());
}

} // namespace

} // namespace scenarios
