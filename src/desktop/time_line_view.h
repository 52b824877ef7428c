// SPDX-License-Identifier: MIT
// The time line on the screen. Each day is a row, with its activities as bars along the hours.
#pragma once

#include <memory>
#include <vector>

#include <QAbstractScrollArea>

#include "schedule/time_line.h"

namespace vanzer::desktop {

class TimeLineView : public QAbstractScrollArea {
    Q_OBJECT
  public:
    explicit TimeLineView(QWidget* parent = nullptr);
    /// Shows a trip from its first day; null clears the view.
    void setLine(std::shared_ptr<const LineaDelTempo> line);

    [[nodiscard]] QSize sizeHint() const override;

  signals:
    /// The activities of the current day, in Italian.
    void dayTold(const QString& text);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent* event) override;

  private:
    struct Measures;
    [[nodiscard]] Measures measures() const;
    void layOut();
    void choose(int day);
    void tellDay();
    [[nodiscard]] int dayAt(int y) const;
    [[nodiscard]] const Attivita* activityAt(QPoint at) const;
    void paintHead(QPainter& painter, const Measures& m);
    void paintDay(QPainter& painter, const Measures& m, int day, int y);
    void paintBar(QPainter& painter, const Measures& m, const Barra& bar, int y);

    std::shared_ptr<const LineaDelTempo> line_;
    std::vector<Giornata> days_;
    int current_ = 0;
};

} // namespace vanzer::desktop
