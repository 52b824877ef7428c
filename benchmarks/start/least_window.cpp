// SPDX-License-Identifier: MIT
// least_window FOLDER: the fastest possible start with a window. A Qt program reads the current trip of the folder's
// archive by plain engine calls. It shows a window with as many standard widgets as Vanzer's first window, and ends
// when it is idle.
#include <cstdlib>

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QWindow>

#include "../bare_archive.h"

namespace {

/// Rows with a label, a field and drop-down lists in boxes, a line of buttons, and a table.
QWidget* stockWidgets() {
    constexpr int boxes = 12;
    auto* const all = new QWidget;
    auto* const column = new QVBoxLayout(all);
    auto* const strip = new QGridLayout;
    column->addLayout(strip);
    for (int i = 0; i < boxes; ++i) {
        auto* const box = new QGroupBox(QStringLiteral("Riquadro"));
        strip->addWidget(box, i / 4, i % 4);
        auto* const row = new QHBoxLayout(box);
        for (int k = 0; k < 3; ++k) {
            row->addWidget(new QLabel(QStringLiteral("Voce")));
            auto* const list = new QComboBox;
            list->addItems({QStringLiteral("00"), QStringLiteral("15"), QStringLiteral("30")});
            row->addWidget(list);
        }
        row->addWidget(new QLineEdit(QStringLiteral("123")));
        row->addWidget(new QLineEdit(QStringLiteral("00:00")));
    }
    auto* const table = new QTableWidget(30, 12);
    for (int r = 0; r < table->rowCount(); ++r)
        table->setItem(r, 1, new QTableWidgetItem(QStringLiteral("LUOGO %1").arg(r)));
    column->addWidget(table);
    auto* const line = new QHBoxLayout;
    column->addLayout(line);
    for (int i = 0; i < 22; ++i)
        line->addWidget(new QPushButton(QStringLiteral("Tasto")));
    return all;
}

} // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    vanzer::bench::readCurrentTrip(QApplication::arguments().value(1));
    QMainWindow window;
    window.resize(1280, 720);
    window.setCentralWidget(stockWidgets());
    window.show();
    while (!window.windowHandle()->isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QTimer::singleShot(0, &application, [] { std::_Exit(0); });
    return QApplication::exec();
}
