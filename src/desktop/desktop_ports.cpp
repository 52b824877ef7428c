// SPDX-License-Identifier: MIT
#include "desktop/desktop_ports.h"

#include <array>
#include <ctime>
#include <span>
#include <utility>

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFontMetrics>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

namespace vanzer::desktop {

namespace {

/// Milliseconds of a clock that is cheap to read and accurate to a few milliseconds.
qint64 coarseTime() {
    timespec t{};
    clock_gettime(CLOCK_MONOTONIC_COARSE, &t);
    return static_cast<qint64>(t.tv_sec) * 1000 + t.tv_nsec / 1000000;
}

struct Choice {
    QMessageBox::StandardButton button;
    const char16_t* text;
    int answer;
};
constexpr std::array<Choice, 1> okChoices{{{QMessageBox::Ok, u"&OK", rispostaOk}}};
constexpr std::array<Choice, 2> yesNo{{{QMessageBox::Yes, u"&Sì", rispostaSi}, {QMessageBox::No, u"&No", rispostaNo}}};
constexpr std::array<Choice, 3> yesNoCancel{{{QMessageBox::Yes, u"&Sì", rispostaSi},
                                             {QMessageBox::No, u"&No", rispostaNo},
                                             {QMessageBox::Cancel, u"&Annulla", rispostaAnnulla}}};
constexpr std::array<Choice, 3> saveOrNot{{{QMessageBox::Yes, u"&Salva", rispostaSi},
                                           {QMessageBox::No, u"&Non salvare", rispostaNo},
                                           {QMessageBox::Cancel, u"&Annulla", rispostaAnnulla}}};
constexpr std::array<Choice, 3> resumeOrBegin{{{QMessageBox::Yes, u"&Riprendi la copia", rispostaSi},
                                               {QMessageBox::No, u"&Nuovo archivio", rispostaNo},
                                               {QMessageBox::Cancel, u"&Annulla", rispostaAnnulla}}};

std::span<const Choice> choices(Pulsanti buttons) {
    switch (buttons) {
    case Pulsanti::Ok: return okChoices;
    case Pulsanti::SiNo: return yesNo;
    case Pulsanti::SalvaNonSalvareAnnulla: return saveOrNot;
    case Pulsanti::RiprendeCominciaAnnulla: return resumeOrBegin;
    default: return yesNoCancel;
    }
}

QMessageBox::Icon sign(const MessageBox& box) {
    if (box.icon == Icona::Avviso || box.refuses || box.destroys)
        return QMessageBox::Warning;
    if (box.icon == Icona::Informazione || !box.files.isEmpty())
        return QMessageBox::Information;
    return box.buttons == Pulsanti::Ok ? QMessageBox::NoIcon : QMessageBox::Question;
}

/// True if a text is laid out in lines, as the help is, or with tabs.
bool setOut(const QString& text) {
    return text.contains(u'\r') || text.contains(u'\t');
}

/// A font in which the columns of a text line up. Texts with tabs need a fixed-width font. Texts indented by blanks
/// were written for a font whose blanks are so narrow that "RITORNO A START:  " is as wide as 37 of them.
QFont fontInWhichItLinesUp(const QString& text, QFont own) {
    if (text.contains(u'\t'))
        return QFontDatabase::systemFont(QFontDatabase::FixedFont);
    own.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("Arimo"), QStringLiteral("Arial")});
    return own;
}

/// Replaces tabs by blanks, and blanks by non-breaking ones.
QString inColumns(const QString& text) {
    constexpr qsizetype tab = 8;
    QString result;
    qsizetype column = 0;
    for (const QChar c : text) {
        const qsizetype blanks = c == u'\t' ? tab - column % tab : c == u' ' ? 1 : 0;
        result += blanks > 0 ? QString(blanks, QChar::Nbsp) : QString(c);
        column = c == u'\n' ? 0 : column + std::max<qsizetype>(blanks, 1);
    }
    return result;
}

/// Shows a text without wrapping its lines: the box is as wide as the longest.
void setInLines(QMessageBox& box, const QString& text) {
    box.setText(inColumns(text));
    box.setFont(fontInWhichItLinesUp(text, box.font()));
    const int width = QFontMetrics(box.font()).size(0, box.text()).width();
    for (QLabel* const label : box.findChildren<QLabel*>()) {
        if (label->text() == box.text())
            label->setMinimumWidth(width);
    }
}

/// Converts a filter to the form of the platform's dialogs, "Name (*.ext)".
QString platformFilter(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString pattern = QString(parts[i + 1]).replace(u';', u' ');
        filters << (parts[i].contains(u'(') ? parts[i] : parts[i] + QStringLiteral(" (") + pattern + u')');
    }
    return filters.join(QStringLiteral(";;"));
}

} // namespace

QWidget* BeforeWindow::opening() const {
    if (onOpen)
        onOpen();
    return window_;
}

bool DesktopOpener::open(const QString& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

void DialogBoxes::open(const QString& path) {
    if (!opener_.open(path))
        static_cast<void>(show({.text = QStringLiteral("Non c'è un programma che apra %1.").arg(path),
                                .title = QStringLiteral("Apri"),
                                .refuses = true}));
}

int DialogBoxes::show(const MessageBox& told) {
    const std::span<const Choice> offered = choices(told.buttons);
    QMessageBox box(opening());
    box.setWindowTitle(told.title.isEmpty() ? QCoreApplication::applicationName() : told.title);
    box.setIcon(sign(told));
    box.setTextFormat(Qt::PlainText);
    const QString plain = QString(told.text).remove(u'\r');
    if (setOut(told.text))
        setInLines(box, plain);
    else
        box.setText(plain);
    // The first text makes the label of the detail, which would read it as mark-up. So set a blank first.
    if (!told.detail.isEmpty())
        box.setInformativeText(QStringLiteral(" "));
    for (auto* const label : box.findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
    box.setInformativeText(told.detail);
    for (const Choice& choice : offered)
        box.addButton(choice.button)->setText(QString::fromUtf16(choice.text));
    const QFileInfo file(told.files.value(0));
    const bool opens = !told.files.isEmpty();
    const auto* const shows = opens ? box.addButton(QStringLiteral("A&pri"), QMessageBox::ActionRole) : nullptr;
    const auto* const showsFolder =
        opens ? box.addButton(QStringLiteral("&Mostra cartella"), QMessageBox::ActionRole) : nullptr;
    box.setDefaultButton(told.destroys ? QMessageBox::No : offered.front().button);
    box.setEscapeButton(offered.back().button);
    const int pressed = box.exec();
    for (const Choice& choice : offered) {
        if (choice.button == pressed)
            return choice.answer;
    }
    if (const auto* const clicked = box.clickedButton(); opens && (clicked == shows || clicked == showsFolder))
        open(clicked == shows ? file.absoluteFilePath() : file.absolutePath());
    return offered.back().answer;
}

QString PlatformDialogs::open(const QString& filter) {
    return QFileDialog::getOpenFileName(opening(), QStringLiteral("Apri"), {}, platformFilter(filter));
}

QString PlatformDialogs::save(const QString& filter, Ricopertura overwriting) {
    QFileDialog dialog(opening(), QStringLiteral("Salva con nome"), {}, platformFilter(filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::DontConfirmOverwrite, overwriting == Ricopertura::ChiedeIlComando);
    // The dialog adds the suffix, so that it asks about the right file before overwriting.
    dialog.setDefaultSuffix(QFileInfo(filter.section(u'|', 1, 1)).suffix());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void PacedYield::begin() {
    const qint64 now = coarseTime();
    lastYield_ = now + pace_.patience - pace_.yields;
    lastFrame_ = now + pace_.frames;
    lastLook_ = now;
    skips_ = 0;
    frameDue_ = false;
}

/// A fast loop, with a yield every microsecond, reads the clock at every sixteenth call only. A slow loop reads it each
/// time.
void PacedYield::yield() {
    constexpr int skippedByFastLoops = 15;
    constexpr qint64 fast = 2; // ms between two looks at the clock
    if (skips_ > 0) {
        --skips_;
        return;
    }
    const qint64 now = coarseTime();
    skips_ = now - lastLook_ <= fast && pace_.yields > 0 ? skippedByFastLoops : 0;
    lastLook_ = now;
    frameDue_ = now - lastFrame_ >= pace_.frames;
    if (now - lastYield_ < pace_.yields)
        return;
    QCoreApplication::processEvents();
    lastYield_ = coarseTime();
    lastLook_ = lastYield_;
}

bool PacedYield::frameDue() {
    if (!std::exchange(frameDue_, false))
        return false;
    lastFrame_ = coarseTime();
    return true;
}

} // namespace vanzer::desktop
