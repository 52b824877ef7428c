// SPDX-License-Identifier: MIT
// The preview of a document before it is printed, and the check box that enables it.
#pragma once

#include <vector>

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

#include "paper/fonts.h"
#include "paper/page.h"

namespace vanzer::desktop {

/// True if the user wants a preview; stored in the settings.
[[nodiscard]] bool previewWanted();

/// The check box for that setting.
class PreviewCheck : public QCheckBox {
    Q_OBJECT
  public:
    explicit PreviewCheck(QWidget* parent = nullptr);
};

/// One page on a grey background, in the size of its zoom.
class PageView : public QWidget {
    Q_OBJECT
  public:
    /// `fonts` must outlive the view.
    explicit PageView(paper::Fonts& fonts, QWidget* parent = nullptr) : QWidget(parent), fonts_(fonts) {}
    /// Shows a page. `page` must exist while it is shown.
    void show(const paper::Page& page, double pixelsPerMm);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    paper::Fonts& fonts_;
    const paper::Page* page_ = nullptr;
    double pixelsPerMm_ = 1;
};

/// The dialog of the preview. It is accepted if the document is to be printed.
class PrintPreview : public QDialog {
    Q_OBJECT
  public:
    /// `pages` needs at least one page; `pages` and `fonts` must outlive the dialog. The title shows `printer`.
    PrintPreview(const std::vector<paper::Page>& pages, paper::Fonts& fonts, const QString& printer, QWidget* parent);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QPushButton* addButton(const QString& text, void (PrintPreview::*press)());
    void previous();
    void next();
    void enlarge();
    void reduce();
    void fitPage();
    void fitWidth();
    void goTo(int page, bool atEnd = false);
    void turn(int steps);
    void zoomTo(double pixelsPerMm);
    void showPage();

    /// What the zoom adapts to when the dialog is resized.
    enum class Fit { Page, Width, Free };

    const std::vector<paper::Page>& pages_;
    int page_ = 0;
    Fit fit_ = Fit::Page;
    double pixelsPerMm_ = 1;
    QScrollArea* area_;
    PageView* view_;
    QLabel* number_;
    QLabel* zoom_;
    QPushButton* previous_;
    QPushButton* next_;
};

} // namespace vanzer::desktop
