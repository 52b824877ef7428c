// The control models: what the window's logic relies on, and what a view is told.
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

#include "toolkit/grid.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;

QString column(const Grid& grid, int c) {
    QStringList texts;
    for (int r = 1; r < grid.rows(); ++r)
        texts << grid.cell(r, c);
    return texts.join(u'|');
}

/// Rows "1a", "2b" … beside a head row.
void letter(Grid& grid) {
    for (int r = 1; r < grid.rows(); ++r) {
        grid.setCell(r, 0, QString::number(r));
        grid.setCell(r, 1, QString(QChar(u'a' + r - 1)));
    }
}

} // namespace

TEST(Controlli, TextChangesAreToldOnceAndOnlyWhenTheyAreReal) {
    TextBox box(u"txtKm"_s, -1, nullptr);
    int changes = 0;
    box.onChange = [&changes] { ++changes; };
    box.setText(u"12"_s);
    box.setText(u"12"_s);
    EXPECT_EQ(changes, 1);
    box.setMaxLength(4);
    box.type(u"123456"_s);
    box.pressKey(u'5');
    EXPECT_EQ(box.text(), u"1234") << "no room";
}

TEST(Controlli, ListsSortAndPickWithoutRegardToCapitals) {
    ListControl list(u"cmbRicercaTappa"_s, -1, nullptr, true);
    list.setSorted(true);
    const QStringList unsorted{u"roma"_s, u"Èze"_s, u"Bari"_s, u"EZE"_s, u"ANCONA"_s};
    for (const auto& entry : unsorted)
        list.add(entry);
    EXPECT_EQ(list.entries(), (QStringList{u"ANCONA"_s, u"Bari"_s, u"EZE"_s, u"Èze"_s, u"roma"_s}));
    const QStringList one = list.entries();
    list.setEntries(unsorted);
    EXPECT_EQ(list.entries(), one);
    EXPECT_TRUE(list.pick(u"BARI"_s));
    EXPECT_FALSE(list.pick(u"Pisa"_s));
    EXPECT_EQ(list.text(), u"Bari");
}

TEST(Griglia, CurrentRowStaysInside) {
    Grid grid(u"mfgTab"_s, -1, nullptr, 30, 20);
    grid.select(25, 1, 28, 19);
    grid.setRows(11);
    EXPECT_EQ(grid.row(), 10);
    EXPECT_EQ(grid.rowSel(), 10);
    grid.setRows(1);
    EXPECT_EQ(grid.row(), 0) << "nothing but the head row";
    grid.setRows(5);
    EXPECT_EQ(grid.row(), 1);
    EXPECT_EQ(grid.topRow(), 1);
    EXPECT_EQ(grid.colSel(), 19);
    grid.setRows(-3);
    EXPECT_EQ(grid.rows(), 1);
}

TEST(Griglia, RowsMoveWhole) {
    Grid grid(u"mfgTab"_s, -1, nullptr, 6, 4);
    letter(grid);
    grid.copyRow(2, 3, 1);
    EXPECT_EQ(column(grid, 1), u"a|b|b|d|e");
    EXPECT_EQ(column(grid, 0), u"1|2|3|4|5") << "the first column stays";
    grid.setCell(99, 1, u"x"_s);
    EXPECT_EQ(grid.cell(99, 1), u"");
    TestiTabella rows = grid.takeContents();
    EXPECT_EQ(grid.rows(), 1);
    grid.setContents(std::move(rows));
    EXPECT_EQ(column(grid, 1), u"a|b|b|d|e");
}

TEST(Griglia, RowsShiftBesideTheirNumbers) {
    const struct {
        const char* what;
        int first, last, by;
        const char* texts;
    } cases[] = {{"down by one", 2, 3, 1, "1a 2- 3b 4c 5e"},    {"down by two", 1, 3, 2, "1- 2- 3a 4b 5c"},
                 {"up over a row", 3, 5, -1, "1a 2c 3d 4e 5-"}, {"up over two", 4, 5, -2, "1a 2d 3e 4- 5-"},
                 {"nowhere to go", 4, 5, 1, "1a 2b 3c 4d 5e"},  {"no rows", 4, 3, 1, "1a 2b 3c 4d 5e"}};
    for (const auto& c : cases) {
        Grid grid(u"mfgTab"_s, -1, nullptr, 6, 2);
        letter(grid);
        grid.shiftRows(c.first, c.last, c.by);
        QStringList texts;
        for (int r = 1; r < 6; ++r)
            texts += grid.cell(r, 0) + (grid.cell(r, 1).isEmpty() ? u"-"_s : grid.cell(r, 1));
        EXPECT_EQ(texts.join(u' ').toStdString(), c.texts) << c.what;
    }
}

TEST(Griglia, TellsTheRowsThatHaveChanged) {
    Grid grid(u"mfgTab"_s, -1, nullptr, 50, 4);
    (void)grid.takeChangedRows();
    using Rows = std::vector<int>;
    const auto changed = [&grid] { return grid.takeChangedRows().value_or(Rows{-1}); };
    grid.setCell(7, 1, QStringLiteral("x"));
    grid.setCell(2, 1, QStringLiteral("x"));
    grid.setCell(7, 2, QStringLiteral("x"));
    grid.setCell(0, 1, QStringLiteral("head"));
    grid.setCell(9, 1, {});
    EXPECT_EQ(changed(), (Rows{2, 7}));
    grid.setCell(7, 2, QStringLiteral("x"));
    EXPECT_EQ(changed(), Rows()) << "the same text";
    grid.setRows(48);
    EXPECT_EQ(changed(), (Rows{48, 49})) << "gone with the end";
    grid.setRows(60);
    EXPECT_EQ(changed(), Rows());
    grid.removeRow(3);
    EXPECT_EQ(changed(), Rows{-1});
    for (int r = 1; r < 60; ++r)
        grid.setCell(r, 3, QStringLiteral("y"));
    EXPECT_EQ(changed(), Rows{-1}) << "too many to tell";
}

TEST(Griglia, ManyChangesAreOneForAView) {
    Grid grid(u"mfgTab"_s, -1, nullptr, 30, 20);
    const QAbstractItemModelTester rules(&grid.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    int resets = 0;
    QObject::connect(&grid.model(), &QAbstractItemModel::modelReset, [&resets] { ++resets; });
    for (const int rows : {40, 3, 1, 17})
        grid.setRows(rows);
    grid.setCell(0, 1, u"Tappa"_s);
    EXPECT_EQ(resets, 0);
    {
        const SenzaRidisegno outer(grid);
        const SenzaRidisegno inner(grid);
        grid.setRows(1);
        TestiTabella two;
        two.setRows(2);
        two.at(0, 1) = u"Pisa"_s;
        grid.setContents(std::move(two));
        grid.setColumns(12);
    }
    EXPECT_EQ(resets, 1);
    EXPECT_EQ(std::pair(grid.model().rowCount(), grid.model().columnCount()), std::pair(2, 12));
    EXPECT_EQ(grid.model().index(0, 1).data().toString(), u"Pisa");
    EXPECT_EQ(grid.model().headerData(1, Qt::Horizontal).toString(), u"Tappa");
}

} // namespace vanzer
