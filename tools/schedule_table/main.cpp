// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

// Reads answers of vanzer-batch from standard input, one JSON object a line. Prints the last grid among them as a
// table. The exit status is 1 if there is none.

namespace {

enum class Align { left, right };

struct Column {
    const char* head;
    Align align;
};

// The columns of the schedule grid, in its order. Columns after these are internal.
constexpr std::array<Column, 13> columns{{{"Num.", Align::right},
                                          {"Tappa", Align::left},
                                          {"Strada", Align::left},
                                          {"Km", Align::right},
                                          {"Ts", Align::left},
                                          {"Km/pr", Align::right},
                                          {"Tempo", Align::right},
                                          {"Itinerario", Align::right},
                                          {"Guida", Align::right},
                                          {"Gs", Align::left},
                                          {"Data", Align::left},
                                          {"Ore", Align::left},
                                          {"Note", Align::left}}};

constexpr std::size_t placeColumn = 1;

using Row = std::array<QString, columns.size()>;

std::optional<QJsonArray> lastGrid(QFile& input) {
    std::optional<QJsonArray> cells;
    for (QByteArray line = input.readLine(); !line.isEmpty(); line = input.readLine()) {
        const QJsonObject answer = QJsonDocument::fromJson(line).object();
        if (answer.contains(QStringLiteral("cells")))
            cells = answer.value(QStringLiteral("cells")).toArray();
    }
    return cells;
}

// The grid's rows below its head row, with the heads of this table.
QList<Row> tableOf(const QJsonArray& cells) {
    Row heads;
    std::transform(columns.begin(), columns.end(), heads.begin(),
                   [](const Column& column) { return QString::fromUtf8(column.head); });
    QList<Row> table{heads};
    for (int r = 1; r < cells.size(); ++r) {
        const QJsonArray texts = cells.at(r).toArray();
        Row row;
        for (int c = 0; c < static_cast<int>(columns.size()); ++c)
            row[static_cast<std::size_t>(c)] = texts.at(c).toString().simplified();
        table.append(row);
    }
    return table;
}

// Whether the row is a sentence below the schedule. It begins in the column of places and continues over the others.
bool isRemark(const Row& row) {
    for (std::size_t c = 0; c < columns.size(); ++c)
        if (row[c].isEmpty() == (c == placeColumn))
            return false;
    return true;
}

std::array<qsizetype, columns.size()> widthsOf(const QList<Row>& table) {
    std::array<qsizetype, columns.size()> widths{};
    for (const Row& row : table)
        for (std::size_t c = 0; c < columns.size() && !isRemark(row); ++c)
            widths[c] = std::max(widths[c], row[c].size());
    return widths;
}

void print(const QStringList& texts) {
    QString line = texts.join(QStringLiteral("  "));
    while (line.endsWith(u' '))
        line.chop(1);
    std::puts(line.toUtf8().constData());
}

void printTable(const QList<Row>& table) {
    const auto widths = widthsOf(table);
    for (qsizetype r = 0; r < table.size(); ++r) {
        QStringList texts;
        QStringList rule;
        for (std::size_t c = 0; c < columns.size(); ++c) {
            const QString& text = table.at(r)[c];
            texts.append(columns[c].align == Align::right ? text.rightJustified(widths[c])
                                                          : text.leftJustified(widths[c]));
            rule.append(QString(widths[c], u'-'));
        }
        print(texts);
        if (r == 0)
            print(rule);
    }
}

} // namespace

int main() {
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return 1;
    const std::optional<QJsonArray> cells = lastGrid(input);
    if (!cells) {
        std::fputs("schedule_table: no grid among the answers\n", stderr);
        return 1;
    }
    printTable(tableOf(*cells));
    return 0;
}
