// SPDX-License-Identifier: MIT
#include "desktop/main_window.h"

#include <algorithm>
#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QRadioButton>
#include <QScreen>
#include <QSettings>

#include "desktop/frames.h"
#include "desktop/spoken.h"
#include "desktop/time_line_view.h"
#include "startup/enter_key.h"
#include "startup/ways_out.h"
#include "ui_main_window.h"
#include "window/progress.h"

namespace vanzer::desktop {

namespace {

constexpr QSize firstSize{1280, 720};
constexpr QSize leastSize{320, 240};
const QString placeKey = QStringLiteral("finestra/posto");

/// The outermost frame around a widget.
const QWidget* outerFrame(const QWidget* widget) {
    const QWidget* outermost = nullptr;
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (widget->objectName().startsWith(QStringLiteral("frmframe")))
            outermost = widget;
    }
    return outermost;
}

/// The Alt letter of a button or of a label's field.
QKeySequence mnemonic(const QWidget& widget) {
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
        return button->shortcut();
    const auto* const label = qobject_cast<const QLabel*>(&widget);
    return label == nullptr || label->buddy() == nullptr ? QKeySequence() : QKeySequence::mnemonic(label->text());
}

/// The widget that a frame's form names as the first to get the focus: a widget, or the selected one of an array of
/// options.
QWidget* firstOf(const QWidget& frame) {
    const QString name = frame.property("fuoco").toString();
    for (auto* const option : frame.findChildren<QRadioButton*>()) {
        if (option->isChecked() && option->objectName().startsWith(name + u'_'))
            return option;
    }
    return name.isEmpty() ? nullptr : frame.findChild<QWidget*>(name);
}

} // namespace

MainWindow::MainWindow(Form& form)
    : form_(form), ui_(std::make_unique<Ui::MainWindow>()), contents_(*new QWidget(this)), binder_(form) {
    nameOwnWidgets();
    ui_->setupUi(&contents_);
    area_.setFrameShape(QFrame::NoFrame);
    area_.setFocusPolicy(Qt::NoFocus);
    area_.setWidgetResizable(true);
    area_.setWidget(&contents_);
    contents_.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &MainWindow::scrollTo);
    setMinimumSize(leastSize);
    resize(firstSize);
    addFrames();
    setWindowTitle(form.caption);
    ui_->lblElaborazione->setIdle(testoInAttesa.toString());
    hints_ = std::make_unique<HintLine>(*this, *ui_->lblElaborazione);
    binder_.bind(*this);
    form_.onManuale = [this] { showManual(); };
    takeIn(*this);
    connect(&binder_, &Binder::closed, this, &QWidget::close);
    connect(&binder_, &Binder::inputEnded, this, [this] {
        if (std::exchange(closeWaits_, false))
            close();
    });
    layOutFrames();
}

MainWindow::~MainWindow() {
    form_.onManuale = {};
    hints_.reset(); // first: destroying widgets sends leave events
}

void MainWindow::showManual() {
    if (manual_ == nullptr) {
        manual_ = new ManualWindow(this);
        manual_->setAttribute(Qt::WA_DeleteOnClose);
    }
    manual_->show();
    manual_->raise();
    manual_->activateWindow();
}

void MainWindow::takeIn(QWidget& form) {
    for (QAbstractButton* const button : form.findChildren<QAbstractButton*>())
        button->installEventFilter(this);
    for (QLabel* const label : form.findChildren<QLabel*>()) {
        label->setTextFormat(Qt::PlainText);
        label->installEventFilter(this);
    }
}

void MainWindow::addFrames() {
    for (const DisegnoRiquadro& design : frameDesigns()) {
        const std::size_t at = frames_.size();
        frames_.push_back(nullptr);
        binder_.bindLater(*form_.find(QString::fromUtf16(design.control)), [this, at, &design]() -> QWidget& {
            QWidget& frame = *design.make(contents_);
            takeIn(frame);
            if (auto* const picture = frame.findChild<TimeLineView*>())
                connect(picture, &TimeLineView::dayTold, frame.findChild<QLabel*>(QStringLiteral("giornoLinea")),
                        &QLabel::setText);
            return *(frames_[at] = &arranged(frame));
        });
    }
    frames_.push_back(&arranged(*ui_->cmbRicerca));
    frames_.push_back(&arranged(*ui_->cmbRicercaTappa));
}

QWidget& MainWindow::arranged(QWidget& frame) {
    frame.setAutoFillBackground(true);
    frame.installEventFilter(this);
    return frame;
}

bool MainWindow::isThere(const QWidget* frame) {
    return frame != nullptr && !frame->isHidden();
}

/// Scrolls to the widget that got the focus, except after a click: nothing must move under the mouse.
void MainWindow::scrollTo(QWidget* /*before*/, QWidget* focused) const {
    if (focused == nullptr || !contents_.isAncestorOf(focused) || QApplication::mouseButtons() != Qt::NoButton)
        return;
    for (QWidget* holder = focused; holder != nullptr; holder = holder->parentWidget()) {
        if (auto* const area = qobject_cast<QScrollArea*>(holder))
            area->ensureWidgetVisible(focused, 0, 0);
    }
}

/// The size at which the fixed forms and all visible frames fit.
QSize MainWindow::neededSize() const {
    const QLayout& fixed = *contents_.layout();
    const QMargins margins = fixed.contentsMargins();
    const int above = ui_->parametri->mapTo(&contents_, QPoint()).y();
    const int below = ui_->piede->minimumSizeHint().height() + fixed.spacing() + margins.bottom();
    QSize needed = fixed.minimumSize();
    for (const QWidget* const frame : frames_) {
        if (!isThere(frame))
            continue;
        QSize own = frame->minimumSizeHint().grownBy(margins);
        if (posto(*frame) == Posto::Fianco)
            own = {0, above + frame->minimumSizeHint().height() + below};
        if (posto(*frame) == Posto::Sotto)
            own.setHeight(0); // it takes its height from the table
        needed = needed.expandedTo(own);
    }
    return needed;
}

/// Places the frames. Those beside and below the table take room from it; the others cover it.
void MainWindow::layOutFrames() {
    const QRect whole = contents_.contentsRect().marginsRemoved(contents_.layout()->contentsMargins());
    int side = 0;
    int below = 0;
    for (const QWidget* const frame : frames_) {
        if (!isThere(frame))
            continue;
        if (posto(*frame) == Posto::Fianco)
            side = std::max(side, frame->sizeHint().width());
        if (posto(*frame) == Posto::Sotto)
            below = std::max(below, frameHeight(*frame, whole.width()) + ui_->areaTabella->spacing());
    }
    ui_->areaTabella->setContentsMargins(0, 0, side > 0 ? side + ui_->areaTabella->spacing() : 0, below);
    contents_.layout()->activate();
    contents_.setMinimumSize(neededSize());
    const int sideTop = ui_->parametri->mapTo(&contents_, QPoint()).y();
    const QRect table(ui_->mfgTab->mapTo(&contents_, QPoint()), ui_->mfgTab->size());
    const QRect room(whole.right() + 1 - side, sideTop, side, table.bottom() + 1 - sideTop);
    for (QWidget* const frame : frames_) {
        if (!isThere(frame))
            continue;
        frame->setGeometry(frameRect(*frame, table, whole, room));
        frame->raise();
    }
}

void MainWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    area_.resize(size());
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::Shortcut) {
        if (auto* const widget = qobject_cast<QWidget*>(watched))
            return pressMnemonic(*widget, static_cast<QShortcutEvent*>(event)->isAmbiguous());
    }
    if (watched == &contents_ && type == QEvent::Resize)
        layOutFrames();
    const bool arranges = type == QEvent::ShowToParent || type == QEvent::HideToParent;
    if (const auto frame = std::ranges::find(frames_, watched); arranges && frame != frames_.end()) {
        layOutFrames();
        if (auto* const picture = (*frame)->findChild<TimeLineView*>())
            picture->setLine(type == QEvent::ShowToParent ? form_.linea : nullptr);
        type == QEvent::ShowToParent ? takeFocus(**frame) : giveFocusBack(**frame);
    }
    return QWidget::eventFilter(watched, event);
}

/// Gives the focus to the first widget of a frame that has just appeared, if its form names one.
void MainWindow::takeFocus(QWidget& frame) {
    QWidget* const first = firstOf(frame);
    if (first == nullptr)
        return;
    before_[&frame] = QApplication::focusWidget();
    first->setFocus(Qt::TabFocusReason);
}

void MainWindow::giveFocusBack(QWidget& frame) {
    const auto found = before_.find(&frame);
    if (found == before_.end())
        return;
    QWidget* const before = found->second;
    before_.erase(found);
    if (before != nullptr && before->isVisible() && before->isEnabled())
        before->setFocus(Qt::OtherFocusReason);
}

/// An Alt letter focuses its button and presses it at once, so that the next keys arrive at the right place. If several
/// buttons share the letter, the one in the frame with the focus counts. Else buttons with the property "secondaScelta"
/// are left out, first in that frame and then in the whole window. A button that shares its letter with a field's label
/// in the frame with the focus is only focused, in turn with the field.
bool MainWindow::pressMnemonic(QWidget& widget, bool ambiguous) {
    QAbstractButton* const meant = ambiguous ? meantBy(widget) : qobject_cast<QAbstractButton*>(&widget);
    if (meant == nullptr)
        return false;
    meant->setFocus(Qt::ShortcutFocusReason);
    meant->click();
    return true;
}

bool MainWindow::pressLetter(const QKeyEvent& key) {
    if (key.modifiers() != Qt::AltModifier)
        return false;
    QList<QWidget*> having;
    for (QWidget* const widget : findChildren<QWidget*>()) {
        if (mnemonic(*widget) == QKeySequence(key.keyCombination()) && widget->isVisible() && widget->isEnabled())
            having << widget;
    }
    if (having.isEmpty())
        return false;
    if (!pressMnemonic(*having.front(), having.size() > 1)) {
        if (const auto* const label = qobject_cast<QLabel*>(having.front()))
            label->buddy()->setFocus(Qt::ShortcutFocusReason);
    }
    return true;
}

QAbstractButton* MainWindow::meantBy(const QWidget& widget) const {
    const auto other = [letter = mnemonic(widget)](const QWidget* one) {
        return mnemonic(*one) != letter || !one->isVisible() || !one->isEnabled();
    };
    QList<QAbstractButton*> sharing = findChildren<QAbstractButton*>();
    QList<QLabel*> labels = findChildren<QLabel*>();
    sharing.removeIf(other);
    labels.removeIf(other);
    const auto near = [frame = outerFrame(QApplication::focusWidget())](const QWidget* one) {
        return outerFrame(one) == frame;
    };
    const auto only = [&sharing](const auto& fits) -> QAbstractButton* {
        return std::ranges::count_if(sharing, fits) == 1 ? *std::ranges::find_if(sharing, fits) : nullptr;
    };
    if (sharing.size() < 2)
        return std::ranges::any_of(labels, near) ? nullptr : only(near);
    if (QAbstractButton* const nearest = only(near))
        return nearest;
    const auto first = [](const QWidget* one) { return !one->property("secondaScelta").toBool(); };
    if (QAbstractButton* const nearest = only([&](const QWidget* one) { return near(one) && first(one); }))
        return nearest;
    return only(first);
}

/// Presses the button that has the focus, or else the default button.
void MainWindow::pressEnter() {
    QWidget* const focused = focusWidget();
    if (auto* const button = qobject_cast<QPushButton*>(focused); button != nullptr && button->isEnabled()) {
        button->click();
        return;
    }
    const Control* const field = focused == nullptr ? nullptr : form_.find(Binder::controlName(focused->objectName()));
    if (Button* const button = pulsanteDiInvio(form_, field))
        binder_.input([button] { button->click(); });
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter: pressEnter(); break;
    case Qt::Key_Escape: binder_.input([this] { giveUpChoice(form_); }); break;
    default: QWidget::keyPressEvent(event);
    }
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (!form_.chiusa) {
        binder_.input([this] { closeWaits_ = !askToClose(form_); });
        event->setAccepted(form_.chiusa);
    }
    if (event->isAccepted())
        savePlace();
}

void MainWindow::restorePlace() {
    restoreGeometry(QSettings().value(placeKey).toByteArray());
    // The stored position may be on no screen.
    if (QApplication::screenAt(geometry().center()) == nullptr)
        move(screen()->availableGeometry().topLeft());
    fitScreen();
}

/// Limits the size to the screen. The size of the window's border isn't known yet; a title bar is a good guess.
void MainWindow::fitScreen() {
    const QSize room = screen()->availableGeometry().size() - QSize(0, style()->pixelMetric(QStyle::PM_TitleBarHeight));
    if (size() == size().boundedTo(room))
        return;
    resize(size().boundedTo(room));
    setWindowState(windowState() | Qt::WindowMaximized);
}

void MainWindow::savePlace() const {
    QSettings().setValue(placeKey, saveGeometry());
}

} // namespace vanzer::desktop
