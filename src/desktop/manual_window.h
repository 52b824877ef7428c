// SPDX-License-Identifier: MIT
// The manual, in a window of its own, so that the user can read it while working.
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
    std::vector<int> blocks_; ///< first text block of each chapter
};

} // namespace vanzer::desktop
