// SPDX-License-Identifier: MIT
#include "desktop/manual_window.h"

#include <QFile>
#include <QLabel>
#include <QRegularExpression>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QTextBlock>
#include <QVBoxLayout>

namespace vanzer::desktop {

namespace {

constexpr QSize manualSize{1000, 760};
constexpr int deepestChapter = 2; // lowest heading level in the list of chapters

/// The text of the manual without its comments, which are for the tests.
QString manualText() {
    QFile file(QStringLiteral(":/manuale/manuale.md"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    static const QRegularExpression comment(QStringLiteral("<!--.*?-->\\n*"),
                                            QRegularExpression::DotMatchesEverythingOption);
    return QString::fromUtf8(file.readAll()).remove(comment);
}

/// Shows the manual with its pictures scaled to the text's width. Loads nothing but the manual's own resources.
class Pages : public QTextBrowser {
  public:
    using QTextBrowser::QTextBrowser;
    QVariant loadResource(int type, const QUrl& name) override {
        const bool own = name.isRelative() || name.scheme() == u"qrc";
        QVariant found = own ? QTextBrowser::loadResource(type, name) : QVariant();
        if (type != QTextDocument::ImageResource)
            return found;
        constexpr int widest = 680;
        QImage picture;
        picture.loadFromData(found.toByteArray());
        return picture.width() > widest ? picture.scaledToWidth(widest, Qt::SmoothTransformation) : picture;
    }
};

} // namespace

ManualWindow::ManualWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
    setWindowTitle(QStringLiteral("Vanzer - Manuale"));
    resize(manualSize);
    chapters_ = new QListWidget;
    chapters_->setAccessibleName(QStringLiteral("Capitoli"));
    text_ = new Pages;
    text_->setAccessibleName(QStringLiteral("Testo del manuale"));
    text_->setOpenExternalLinks(true);
    text_->setSearchPaths({QStringLiteral(":/manuale")});
    text_->setMarkdown(manualText());
    wanted_ = new QLineEdit;
    wanted_->setClearButtonEnabled(true);
    auto* const label = new QLabel(QStringLiteral("&Cerca:"));
    label->setBuddy(wanted_);
    auto* const side = new QWidget;
    auto* const sideLayout = new QVBoxLayout(side);
    sideLayout->setContentsMargins(0, 0, 0, 0);
    sideLayout->addWidget(label);
    sideLayout->addWidget(wanted_);
    sideLayout->addWidget(chapters_);
    auto* const splitter = new QSplitter;
    splitter->addWidget(side);
    splitter->addWidget(text_);
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({manualSize.width() / 4, manualSize.width() * 3 / 4});
    auto* const all = new QVBoxLayout(this);
    all->addWidget(splitter);
    listChapters();

    connect(chapters_, &QListWidget::currentRowChanged, this, &ManualWindow::goTo);
    connect(wanted_, &QLineEdit::returnPressed, this, [this] { find(false); });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        wanted_->setFocus(Qt::ShortcutFocusReason);
        wanted_->selectAll();
    });
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this, [this] { find(false); });
    connect(new QShortcut(QKeySequence::FindPrevious, this), &QShortcut::activated, this, [this] { find(true); });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    text_->setFocus();
}

void ManualWindow::listChapters() {
    for (QTextBlock block = text_->document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level < 1 || level > deepestChapter)
            continue;
        chapters_->addItem(block.text());
        blocks_.push_back(block.blockNumber());
    }
}

void ManualWindow::goTo(int chapter) {
    if (chapter < 0)
        return;
    const QTextBlock block = text_->document()->findBlockByNumber(blocks_[static_cast<std::size_t>(chapter)]);
    QTextCursor cursor(block);
    text_->setTextCursor(cursor);
    QScrollBar& bar = *text_->verticalScrollBar();
    bar.setValue(bar.value() + text_->cursorRect(cursor).top());
}

/// Searches and wraps around at the end. Doesn't move if nothing is found.
void ManualWindow::find(bool backward) {
    const QTextDocument::FindFlags flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (wanted_->text().isEmpty() || text_->find(wanted_->text(), flags))
        return;
    const QTextCursor before = text_->textCursor();
    text_->moveCursor(backward ? QTextCursor::End : QTextCursor::Start);
    if (!text_->find(wanted_->text(), flags))
        text_->setTextCursor(before);
}

} // namespace vanzer::desktop
