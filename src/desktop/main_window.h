// The window: the fixed forms, the frames laid over and beside the table, and what belongs to a window as such: Enter,
// Esc, the close button, size and place.
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
    /// The form lives longer than the window.
    explicit MainWindow(Form& form);
    ~MainWindow() override;

    [[nodiscard]] Binder& binder() { return binder_; }
    [[nodiscard]] Form& form() { return form_; }
    /// An Alt letter whose key comes late presses its button, or goes to its field, all the same; false if nothing in
    /// sight has it.
    bool pressLetter(const QKeyEvent& key);
    /// Size and place of the last time; the window's own without any. What is larger than the screen fills it.
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
    /// Watches the letters of a form, whose labels show plain texts.
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
    QWidget& contents_;                                  ///< all of the window
    std::vector<QWidget*> frames_;                       ///< over and beside the table; null until they are seen
    std::map<const QWidget*, QPointer<QWidget>> before_; ///< what had the focus before a frame took it
    QPointer<ManualWindow> manual_;
    bool closeWaits_ = false; ///< the window is to be left when the running command has ended
    Binder binder_;
    std::unique_ptr<HintLine> hints_;
    /// Of the contents, of which a small window shows a part; goes first, while all are watched.
    QScrollArea area_{this};
};

} // namespace vanzer::desktop
