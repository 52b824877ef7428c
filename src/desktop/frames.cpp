// SPDX-License-Identifier: MIT
#include "desktop/frames.h"

#include <algorithm>
#include <array>
#include <utility>

#include <QStyleOption>
#include <QStylePainter>

#include "desktop/tints.h"
#include "ui_frame_1.h"
#include "ui_frame_12.h"
#include "ui_frame_16.h"
#include "ui_frame_17.h"
#include "ui_frame_18.h"
#include "ui_frame_19.h"
#include "ui_frame_22.h"
#include "ui_frame_23.h"
#include "ui_frame_24.h"
#include "ui_frame_25.h"
#include "ui_frame_linea.h"
#include "ui_frame_primi_passi.h"

namespace vanzer::desktop {

namespace {

/// A frame over the table: with an outline around the whole frame and the caption inside.
class FrameBox : public QGroupBox {
  public:
    using QGroupBox::QGroupBox;

  protected:
    void paintEvent(QPaintEvent* event) override {
        const Posto place = posto(*this);
        if (place == Posto::Fianco || place == Posto::Sotto) {
            QGroupBox::paintEvent(event);
            return;
        }
        constexpr QPoint captionInset(12, 5);
        QStylePainter painter(this);
        painter.setPen(Tints(palette()).rule);
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
        QStyleOptionGroupBox option;
        initStyleOption(&option);
        option.subControls = QStyle::SC_GroupBoxLabel;
        painter.translate(captionInset);
        painter.drawComplexControl(QStyle::CC_GroupBox, option);
    }
};

template<typename Design> QWidget* made(QWidget& window) {
    auto* const frame = new FrameBox(&window);
    Design().setupUi(frame);
    frame->hide();
    return frame;
}

/// The choice of the printer and the waiting note come last, over all others.
constexpr std::array<DisegnoRiquadro, 12> designs{{{u"frmPrimiPassi", made<Ui::FramePrimiPassi>},
                                                   {u"frmLinea", made<Ui::FrameLinea>},
                                                   {u"frmframe(12)", made<Ui::Frame12>},
                                                   {u"frmframe(1)", made<Ui::Frame1>},
                                                   {u"frmframe(24)", made<Ui::Frame24>},
                                                   {u"frmframe(17)", made<Ui::Frame17>},
                                                   {u"frmframe(19)", made<Ui::Frame19>},
                                                   {u"frmframe(22)", made<Ui::Frame22>},
                                                   {u"frmframe(18)", made<Ui::Frame18>},
                                                   {u"frmframe(25)", made<Ui::Frame25>},
                                                   {u"frmframe(23)", made<Ui::Frame23>},
                                                   {u"frmframe(16)", made<Ui::Frame16>}}};

constexpr std::array<std::pair<const char*, Posto>, 7> places{{{"fianco", Posto::Fianco},
                                                               {"sotto", Posto::Sotto},
                                                               {"sinistra", Posto::Sinistra},
                                                               {"centro", Posto::Centro},
                                                               {"destra", Posto::Destra},
                                                               {"piede", Posto::Piede},
                                                               {"tabella", Posto::Tabella}}};

constexpr int inset = 12;   // px between the edges of the table and of a frame over it
constexpr int numbers = 31; // px of the table's row numbers that stay visible beside a list
constexpr int head = 8;     // px of the head row that stay visible

} // namespace

std::span<const DisegnoRiquadro> frameDesigns() {
    return designs;
}

Posto posto(const QWidget& frame) {
    const QString said = frame.property("posto").toString();
    for (const auto& [name, place] : places) {
        if (said == QLatin1StringView(name))
            return place;
    }
    return Posto::Centro;
}

int frameHeight(const QWidget& frame, int width) {
    return frame.hasHeightForWidth() ? frame.heightForWidth(width) : frame.sizeHint().height();
}

QRect frameRect(const QWidget& frame, const QRect& table, const QRect& whole, const QRect& side) {
    const QSize wish = frame.sizeHint();
    const QRect inner = table.adjusted(inset, inset, -inset, -inset);
    QRect rect(QPoint(), wish.boundedTo(whole.size()));
    switch (posto(frame)) {
    case Posto::Fianco: return side;
    case Posto::Tabella: return table;
    case Posto::Sotto: return {whole.left(), table.bottom() + 1, whole.width(), frameHeight(frame, whole.width())};
    case Posto::Sinistra: return {inner.left() + numbers, inner.top() + head, rect.width(), inner.height() - head};
    case Posto::Destra: rect.moveTopRight(inner.topRight()); break;
    case Posto::Piede:
        rect.moveCenter(inner.center());
        rect.moveBottom(inner.bottom());
        break;
    default: rect.moveCenter(table.center());
    }
    // A frame that is higher than the table covers what is above the table.
    rect.moveBottom(std::min(rect.bottom(), whole.bottom()));
    rect.moveTop(std::max(rect.top(), whole.top()));
    return rect;
}

} // namespace vanzer::desktop
