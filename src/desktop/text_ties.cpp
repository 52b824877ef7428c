// SPDX-License-Identifier: MIT
#include "desktop/text_ties.h"

#include <algorithm>

#include "desktop/key_codes.h"

namespace vanzer::desktop {

namespace {

constexpr int backspace = 8;
constexpr int firstCharacter = 32;

/// The key-down code of a key. Letters, digits and Space have their character codes, and keys that move the cursor have
/// codes from 33 on. 0 for other characters, whose codes would be mistaken for such keys.
int keyDownCode(int key) {
    switch (key) {
    case Qt::Key_End: return 35;
    case Qt::Key_Home: return 36;
    case Qt::Key_Left: return 37;
    case Qt::Key_Right: return 39;
    case Qt::Key_Backspace: return backspace;
    case Qt::Key_Tab: return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter: return 13;
    case Qt::Key_Escape: return 27;
    default: break;
    }
    const bool own =
        key == Qt::Key_Space || (key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z);
    return own ? key : rowKeyCode(key);
}

qsizetype commonStart(const QString& a, const QString& b) {
    return std::mismatch(a.begin(), a.begin() + std::min(a.size(), b.size()), b.begin()).first - a.begin();
}

} // namespace

QString filteredEdit(const TextControl& model, const QString& old, const QString& edited, int& cursor) {
    const qsizetype start = std::min<qsizetype>(commonStart(old, edited), cursor);
    const qsizetype tail = edited.size() - cursor;
    // The views must not be null: a null view doesn't end with an empty one.
    if (cursor <= start || tail > old.size() || QStringView(old).last(tail) != QStringView(edited).last(tail))
        return edited;
    QString brought;
    for (const char32_t c : edited.mid(start, cursor - start).toUcs4()) {
        const auto passed = static_cast<char32_t>(model.filterKey(static_cast<int>(c)));
        if (passed >= firstCharacter)
            brought += QString::fromUcs4(&passed, 1);
    }
    if (model.room() >= 0)
        brought.truncate(std::max<qsizetype>(model.room() - start - tail, 0));
    QString result = edited.left(start) + brought + edited.right(tail);
    cursor = static_cast<int>(start + brought.size());
    return result;
}

TextTie::TextTie(TextControl& model, QWidget& widget, Binder& to) : Tie(model, widget, to), model_(model) {
    widget.installEventFilter(this);
}

bool TextTie::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        if (keyPressed(*static_cast<QKeyEvent*>(event)))
            return true;
    } else if (event->type() == QEvent::FocusOut && !binder().showing()) {
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason && model_.onLostFocus)
            binder().input([this] { model_.leave(); });
    }
    return Tie::eventFilter(watched, event);
}

void TextTie::follow(QLineEdit& line) {
    line_ = &line;
    connect(&line, &QLineEdit::textEdited, this, &TextTie::edited);
}

bool TextTie::keyPressed(const QKeyEvent& event) {
    if (const int code = keyDownCode(event.key()); code != 0 && model_.onKeyDown)
        binder().input([this, code] { model_.keyDown(code); });
    if (event.key() == Qt::Key_Backspace)
        return filtered(backspace) == 0;
    const bool command = (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0;
    const bool character = event.text().size() == 1 && event.text().at(0).unicode() >= firstCharacter;
    // The Alt letter of a disabled button isn't text. (Alt with Ctrl may be AltGr.)
    if (character && event.modifiers().testFlag(Qt::AltModifier) && !event.modifiers().testFlag(Qt::ControlModifier))
        return true;
    return !command && character && event.key() != Qt::Key_Delete && typed(event.text().at(0).unicode());
}

int TextTie::filtered(int code) {
    int passed = 0;
    binder().input([this, code, &passed] { passed = model_.filterKey(code); });
    return passed;
}

/// Handles a typed key. A dropped key doesn't delete the selected text.
bool TextTie::typed(int code) {
    if (line_ == nullptr || line_->isReadOnly())
        return false;
    const int passed = filtered(code);
    const qsizetype kept = line_->text().size() - line_->selectedText().size();
    if (passed < firstCharacter || (model_.room() >= 0 && kept >= model_.room()))
        return true;
    filtered_ = true;
    line_->insert(QString(QChar(static_cast<char16_t>(passed))));
    filtered_ = false;
    return true;
}

void TextTie::edited(const QString& text) {
    int cursor = line_->cursorPosition();
    const QString kept = filtered_ ? text : filteredEdit(model_, model_.text(), text, cursor);
    if (kept != text) {
        line_->setText(kept);
        line_->setCursorPosition(cursor);
    }
    binder().input([this] { model_.setText(line_->text()); });
}

FieldTie::FieldTie(TextControl& model, QLineEdit& line, Binder& to)
    : TextTie(model, line, to), model_(model), line_(line) {
    follow(line);
}

void FieldTie::showOwn() {
    if (line_.text() == model_.text())
        return;
    line_.setText(model_.text());
    if (line_.isReadOnly() || !line_.hasFocus())
        line_.setCursorPosition(0);
}

DropDownTie::DropDownTie(ListControl& model, DropDown& list, Binder& to)
    : TextTie(model, list, to), model_(model), list_(list) {
    list.setEditable(!model.entriesOnly());
    if (list.lineEdit() != nullptr) {
        list.setCompleter(nullptr);
        follow(*list.lineEdit());
    }
    connect(&list, &QComboBox::activated, this,
            [this](int at) { binder().input([this, at] { model_.pick(model_.List(at)); }); });
}

void DropDownTie::showOwn() {
    if (shown_ != model_.entries()) {
        shown_ = model_.entries();
        list_.showEntries(shown_);
    }
    if (list_.shownText() != model_.text() || (list_.isEditable() && list_.currentText() != model_.text()))
        list_.showText(model_.text());
    list_.setAccessibleDescription(model_.text());
}

bool DropDownTie::keyPressed(const QKeyEvent& event) {
    if (TextTie::keyPressed(event))
        return true;
    // Disables the search by letters in a list without typing. Space opens it.
    return model_.entriesOnly() && !event.text().isEmpty() && event.text().at(0) > u' ';
}

ListBoxTie::ListBoxTie(ListControl& model, QListView& view, Binder& to)
    : Tie(model, view, to), model_(model), view_(view), marks_(view.property("segna").toBool()) {
    view.setModel(&entries_);
    view.setUniformItemSizes(true);
    view.setSpacing(1);
    view.setEditTriggers(QAbstractItemView::NoEditTriggers);
    view.installEventFilter(this);
    connect(&view, &QListView::clicked, this, &ListBoxTie::pickCurrent);
    if (marks_)
        connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this, &ListBoxTie::pickCurrent);
}

bool ListBoxTie::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            pickCurrent();
            return true;
        }
    }
    // A list gets the focus when it appears, so that the user can pick at once.
    if (event->type() == QEvent::Show && !marks_)
        view_.setFocus(Qt::OtherFocusReason);
    return Tie::eventFilter(watched, event);
}

void ListBoxTie::pickCurrent() {
    const QString entry = view_.currentIndex().data().toString();
    if (!entry.isEmpty() && !binder().showing())
        binder().input([this, &entry] { model_.pick(entry); });
}

void ListBoxTie::showOwn() {
    const bool changed = entries_.stringList() != model_.entries();
    if (changed)
        entries_.setStringList(model_.entries());
    if (marks_)
        view_.setCurrentIndex(entries_.index(static_cast<int>(model_.entries().indexOf(model_.text()))));
    else if (changed)
        view_.setCurrentIndex(entries_.index(0));
}

} // namespace vanzer::desktop
