#include "desktop/frames.h"

#include <algorithm>
#include <array>
#include <utility>

#include "ui_frame_12.h"
#include "ui_frame_24.h"

namespace vanzer::desktop {

namespace {

template<typename Design> QWidget* made(QWidget& window) {
    auto* const frame = new QGroupBox(&window);
    Design().setupUi(frame);
    frame->hide();
    return frame;
}

constexpr std::array designs{made<Ui::Frame12>, made<Ui::Frame24>};

constexpr std::array<std::pair<const char*, Posto>, 6> places{{{"fianco", Posto::Fianco},
                                                               {"sotto", Posto::Sotto},
                                                               {"sinistra", Posto::Sinistra},
                                                               {"centro", Posto::Centro},
                                                               {"destra", Posto::Destra},
                                                               {"piede", Posto::Piede}}};

constexpr int inset = 12;   // px between the table's edge and what lies over it
constexpr int numbers = 31; // px of the table's numbers that stay in view beside a list
constexpr int head = 8;     // px of its head row

} // namespace

std::vector<QWidget*> makeFrames(QWidget& window) {
    std::vector<QWidget*> frames;
    frames.reserve(designs.size());
    for (const auto make : designs)
        frames.push_back(make(window));
    return frames;
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

QRect frameRect(const QWidget& frame, const QRect& table, const QRect& whole, int sideTop) {
    const QSize wish = frame.sizeHint();
    const QRect inner = table.adjusted(inset, inset, -inset, -inset);
    QRect rect(QPoint(), wish.boundedTo(whole.size()));
    switch (posto(frame)) {
    case Posto::Fianco: return {whole.right() + 1 - wish.width(), sideTop, wish.width(), table.bottom() + 1 - sideTop};
    case Posto::Sotto: return {whole.left(), table.bottom() + 1, whole.width(), frameHeight(frame, whole.width())};
    case Posto::Sinistra: return {inner.left() + numbers, inner.top() + head, rect.width(), inner.height() - head};
    case Posto::Destra: rect.moveTopRight(inner.topRight()); break;
    case Posto::Piede:
        rect.moveCenter(inner.center());
        rect.moveBottom(inner.bottom());
        break;
    default: rect.moveCenter(table.center());
    }
    return rect;
}

} // namespace vanzer::desktop
