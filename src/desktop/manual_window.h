// The manual: a window of its own beside the program's, so that one can read and do.
#pragma once

#include <QLineEdit>
#include <QListWidget>
#include <QTextBrowser>
#include <QWidget>

namespace vanzer::desktop {

class ManualWindow : public QWidget {
    Q_OBJECT
  public:
    explicit ManualWindow(QWidget* parent);

  private:
    void listChapters();
    void goTo(int chapter);
    void find(bool backward);

    QListWidget* chapters_;
    QTextBrowser* text_;
    QLineEdit* wanted_;
    std::vector<int> blocks_; ///< of each chapter: its first block in the text
};

} // namespace vanzer::desktop
