// The preview: the pages of a document before it goes off, and the check box that asks for it.
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

/// Whether the user wants to see documents first; remembered from one start to the next.
[[nodiscard]] bool previewWanted();

/// The check box of that wish.
class PreviewCheck : public QCheckBox {
    Q_OBJECT
  public:
    explicit PreviewCheck(QWidget* parent = nullptr);
};

/// One page on a ground of grey, as large as its zoom makes it.
class PageView : public QWidget {
    Q_OBJECT
  public:
    /// `fonts` lives longer.
    explicit PageView(paper::Fonts& fonts, QWidget* parent = nullptr) : QWidget(parent), fonts_(fonts) {}
    /// `page` stays where it is while it is shown.
    void show(const paper::Page& page, double pixelsPerMm);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    paper::Fonts& fonts_;
    const paper::Page* page_ = nullptr;
    double pixelsPerMm_ = 1;
};

/// Accepted when the document is to go off.
class PrintPreview : public QDialog {
    Q_OBJECT
  public:
    /// `pages`, at least one, and `fonts` live longer than the dialog. `printer` is named in the title.
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

    /// What the zoom follows when the dialog changes its size.
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
