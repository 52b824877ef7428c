// SPDX-License-Identifier: MIT
// The window for users who see badly or not at all, or have no mouse: what it tells a screen reader, its contrasts, and
// its layout with large letters.
#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QScrollArea>

#include "desktop/tints.h"
#include "desktop_fixture.h"

namespace vanzer::desktop {
namespace {

using Reach = DesktopTest;

TEST_F(Reach, WhatTakesTheFocusHasANameOfItsOwn) {
    storeTrip(3);
    open();
    withEachFrame([this](const std::string& where) {
        std::map<std::pair<QWidget*, QString>, QString> met; // by parent and name
        for (QWidget* const widget : window().findChildren<QWidget*>()) {
            if (!widget->isVisible() || (widget->focusPolicy() & Qt::TabFocus) == 0 ||
                widget->objectName().startsWith(u"qt_") || qobject_cast<QComboBox*>(widget->parentWidget()) != nullptr)
                continue;
            // The buttons of the exchange get captions when its kind is chosen.
            if (const auto* const button = qobject_cast<QAbstractButton*>(widget);
                button != nullptr && button->text().isEmpty())
                continue;
            const QString name = spokenName(*widget);
            EXPECT_GT(name.size(), 1) << where << ": " << widget->objectName().toStdString();
            const auto [other, fresh] = met.try_emplace({widget->parentWidget(), name}, widget->objectName());
            EXPECT_TRUE(fresh) << where << ": " << name.toStdString() << " is " << other->second.toStdString()
                               << " and " << widget->objectName().toStdString();
        }
    });
}

/// The relative luminance, as the guidelines for accessible web pages define it.
double light(const QColor& colour) {
    const auto channel = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * channel(colour.redF()) + 0.7152 * channel(colour.greenF()) + 0.0722 * channel(colour.blueF());
}

/// The contrast of two colours, from 1 to 21.
double contrast(const QColor& one, const QColor& other) {
    const auto [dark, bright] = std::minmax({light(one), light(other)});
    return (bright + 0.05) / (dark + 0.05);
}

TEST(Colours, TextsStandOutFromEveryGroundInTheLightAndInTheDark) {
    QPalette dark(QColor(0x35, 0x35, 0x35), QColor(0x2a, 0x2d, 0x31));
    dark.setColor(QPalette::Base, QColor(0x1e, 0x20, 0x23));
    for (const QPalette& palette : {QApplication::palette(), dark}) {
        const Tints tints(palette);
        const QColor text = palette.color(QPalette::Text);
        const QColor base = palette.color(QPalette::Base);
        const std::pair<const char*, QColor> grounds[] = {
            {"fillable", tints.fillable}, {"computed", tints.computed}, {"band", tints.band},   {"total", tints.total},
            {"marked", tints.marked},     {"place", tints.place},       {"drive", tints.drive}, {"stop", tints.stop},
            {"meal", tints.meal},         {"pause", tints.pause},       {"night", tints.night}, {"base", base}};
        for (const auto& [name, ground] : grounds)
            EXPECT_GE(contrast(text, ground), 4.5) << name << (palette == dark ? ", dark" : "");
        for (const auto& [name, ground] : {grounds[2], grounds[11]})
            EXPECT_GE(contrast(tints.faint, ground), 4.5) << "faint on " << name << (palette == dark ? ", dark" : "");
        EXPECT_GE(contrast(tints.rule, base), 3) << "rule" << (palette == dark ? ", dark" : "");
        EXPECT_GE(contrast(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 3);
    }
    for (int category = -1; category <= 21; ++category)
        EXPECT_GE(contrast(Qt::white, coloreCategoria(category)), 4.5) << category;
}

/// The widget has room for its whole text.
void expectWhole(const QWidget& widget, const std::string& where) {
    const QSize lacks = widget.sizeHint() - widget.size();
    EXPECT_TRUE(lacks.width() <= 1 && lacks.height() <= 2)
        << where << ": " << widget.objectName().toStdString() << " lacks " << lacks.width() << " x " << lacks.height();
}

TEST_F(Reach, LettersUpToTwiceAsLargeStayWhole) {
    storeTrip(3);
    const QFont usual = QApplication::font();
    for (const double scale : {1.0, 1.5, 2.0}) {
        QFont font = usual;
        font.setPointSizeF(usual.pointSizeF() * scale);
        QApplication::setFont(font);
        open();
        window().resize(1880, 1120);
        QCoreApplication::processEvents();
        withEachFrame([&](const std::string& frame) {
            const std::string where = frame + ", scale " + std::to_string(scale);
            for (QWidget* const widget : window().findChildren<QWidget*>()) {
                const auto* const label = qobject_cast<QLabel*>(widget);
                const bool shows =
                    label != nullptr ? !label->wordWrap() : qobject_cast<QAbstractButton*>(widget) != nullptr;
                if (widget->isVisible() && shows)
                    expectWhole(*widget, where);
            }
            EXPECT_EQ(window().size(), window().size().boundedTo({1920, 1200})) << where;
        });
        close();
    }
    QApplication::setFont(usual);
}

/// Whether the widget is fully visible, or can be scrolled into view.
bool isReached(const QWidget& widget) {
    QRect place = widget.rect();
    for (const QWidget* at = &widget; !at->isWindow(); at = at->parentWidget()) {
        const QWidget& holder = *at->parentWidget();
        place.translate(at->pos());
        const auto* const area = qobject_cast<const QScrollArea*>(holder.parentWidget());
        const bool scrolls = area != nullptr && (area->verticalScrollBarPolicy() != Qt::ScrollBarAlwaysOff ||
                                                 at->height() <= holder.height());
        if (scrolls && at->rect().translated(at->pos()).contains(place))
            place = holder.rect();
        if (!holder.rect().contains(place))
            return false;
    }
    return true;
}

/// A low screen, and a wide one at twice the scale. Panel and window title take their room.
TEST_F(Reach, ASmallWindowShowsEverythingOrScrollsToIt) {
    storeTrip(3);
    for (const QSize size : {QSize(1280, 660), QSize(1024, 540), QSize(960, 480)}) {
        open();
        window().resize(size);
        QCoreApplication::processEvents();
        withEachFrame([&](const std::string& where) {
            EXPECT_EQ(window().size(), size) << where;
            for (QWidget* const widget : window().findChildren<QWidget*>()) {
                if (!widget->isVisible() || (widget->focusPolicy() & Qt::TabFocus) == 0)
                    continue;
                if (qobject_cast<QAbstractButton*>(widget) != nullptr)
                    expectWhole(*widget, where + ", width " + std::to_string(size.width()));
                EXPECT_TRUE(isReached(*widget)) << size.width() << ", " << where << ": "
                                                << widget->objectName().toStdString() << " is out of reach";
            }
        });
        close();
    }
}

} // namespace
} // namespace vanzer::desktop