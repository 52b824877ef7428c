// SPDX-License-Identifier: MIT
// The control models: the behaviour that the window relies on, and the notices to a view.
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>

#include "toolkit/grid.h"

namespace vanzer {

using namespace Qt::StringLiterals;

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
    for (const QString& entry : {u"roma"_s, u"Èze"_s, u"Bari"_s, u"EZE"_s, u"ANCONA"_s})
        list.add(entry);
    EXPECT_EQ(list.entries().join(u' '), u"ANCONA Bari EZE Èze roma");
    EXPECT_TRUE(list.pick(u"BARI"_s) && !list.pick(u"Pisa"_s));
}

TEST(Griglia, ACopiedRowKeepsItsFirstColumn) {
    Grid grid(u"mfgTab"_s, -1, nullptr, 3, 2);
    for (int r = 1; r < 3; ++r) {
        grid.setCell(r, 0, QString::number(r));
        grid.setCell(r, 1, QString::number(10 * r));
    }
    grid.copyRow(1, 2, 1);
    EXPECT_EQ(grid.cell(2, 0) + grid.cell(2, 1), u"210");
}

TEST(Griglia, MarksGoWithTheirRows) {
    Grid grid(u"mfgTab"_s, -1, nullptr, 6, 2);
    for (const int row : {2, 5})
        grid.setMarked(row, 1, true);
    grid.setRows(4);
    grid.setRows(6);
    EXPECT_TRUE(grid.marked(2, 1));
    EXPECT_FALSE(grid.marked(5, 1)) << "a new row";
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
