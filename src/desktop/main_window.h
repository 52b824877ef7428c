// SPDX-License-Identifier: MIT
// The window: the fixed forms, the frames over and beside the table, and what every window needs: Enter, Esc, the close
// button, size and position.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include <QAbstractButton>
#include <QPointer>
#include <QScrollArea>
#include <QWidget>

#include "desktop/binder.h"
#include "desktop/hint_line.h"
#include "desktop/manual_window.h"

namespace Ui {
class MainWindow;
}

namespace vanzer::desktop {

class MainWindow : public QWidget {
    Q_OBJECT
  public:
    /// `form` must outlive the window.
    explicit MainWindow(Form& form);
    ~MainWindow() override;

    [[nodiscard]] Binder& binder() { return binder_; }
    [[nodiscard]] Form& form() { return form_; }
    /// Handles an Alt letter whose key press was delayed: presses its button or moves the focus to its field. False if
    /// no visible widget has that letter.
    bool pressLetter(const QKeyEvent& key);
    /// Restores size and position of the last session, if any. A window larger than the screen is maximised.
    void restorePlace();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void addFrames();
    [[nodiscard]] QWidget& arranged(QWidget& frame);
    [[nodiscard]] static bool isThere(const QWidget* frame);
    /// Prepares a form: watches its Alt letters and makes its labels show plain text.
    void takeIn(QWidget& form);
    void layOutFrames();
    [[nodiscard]] QSize neededSize() const;
    void fitScreen();
    void scrollTo(QWidget* before, QWidget* focused) const;
    void pressEnter();
    void takeFocus(QWidget& frame);
    void giveFocusBack(QWidget& frame);
    bool pressMnemonic(QWidget& widget, bool ambiguous);
    [[nodiscard]] QAbstractButton* meantBy(const QWidget& widget) const;
    void savePlace() const;
    void showManual();

    Form& form_;
    std::unique_ptr<Ui::MainWindow> ui_;
    QWidget& contents_;            ///< all contents of the window
    std::vector<QWidget*> frames_; ///< frames over and beside the table; null before they are first shown
    std::map<const QWidget*, QPointer<QWidget>> before_; ///< the widget that had the focus before a frame took it
    QPointer<ManualWindow> manual_;
    bool closeWaits_ = false; ///< close the window when the running command has ended
    Binder binder_;
    std::unique_ptr<HintLine> hints_;
    /// Scrolls the contents in a small window. Last member, so that it is destroyed first, while the rest still exists.
    QScrollArea area_{this};
};

} // namespace vanzer::desktop
