// SPDX-License-Identifier: MIT
#include "desktop/tints.h"

#include <array>

namespace vanzer::desktop {

namespace {

/// Mixes two colours; `share` is the part of `over`, from 0 to 1.
QColor mixed(const QColor& under, const QColor& over, float share) {
    const auto channel = [share](float a, float b) { return a + (b - a) * share; };
    return QColor::fromRgbF(channel(under.redF(), over.redF()), channel(under.greenF(), over.greenF()),
                            channel(under.blueF(), over.blueF()));
}

} // namespace

Tints::Tints(const QPalette& palette) {
    const QColor base = palette.color(QPalette::Active, QPalette::Base);
    const QColor text = palette.color(QPalette::Active, QPalette::Text);
    const QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    const bool dark = base.lightness() < text.lightness();
    fillable = mixed(base, QColor(0x3d, 0xa2, 0xf5), dark ? 0.28F : 0.20F);
    computed = mixed(base, text, dark ? 0.10F : 0.07F);
    band = mixed(base, text, dark ? 0.07F : 0.05F);
    total = mixed(base, accent, dark ? 0.30F : 0.14F);
    marked = mixed(base, QColor(0xf5, 0xb8, 0x3d), dark ? 0.35F : 0.40F);
    rule = mixed(base, text, 0.55F);
    faint = mixed(text, base, 0.35F);
    place = mixed(base, accent, dark ? 0.24F : 0.12F);
    const float strength = dark ? 0.50F : 0.45F;
    drive = mixed(base, QColor(0x2f, 0x86, 0xd6), strength);
    stop = mixed(base, QColor(0x4f, 0xa8, 0x3a), strength);
    meal = mixed(base, QColor(0xf0, 0x9a, 0x24), strength);
    pause = mixed(base, QColor(0xa8, 0x5f, 0xd0), strength);
    night = mixed(base, QColor(0x6a, 0x70, 0x92), strength);
}

QColor coloreCategoria(int category) {
    constexpr std::array<QRgb, 14> colours{0xff6b7075,                                     // unknown
                                           0xffb3261e, 0xffc2500e, 0xff96700a, 0xff7d7340, // visits
                                           0xff1560b5, 0xff0a7d95,                         // places to stop
                                           0xff2c7a34, 0xff8a3f9e, 0xff4f5b93,             // camp site, restaurant, gas
                                           0xff795548, 0xff795548, 0xff59682f, 0xff6b7075};
    const bool known = category > 0 && category < static_cast<int>(colours.size());
    return QColor::fromRgb(colours[known ? static_cast<std::size_t>(category) : 0]);
}

QPalette fieldPalette(const QColor& ground) {
    QPalette result;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        result.setColor(group, QPalette::Base, ground);
        result.setColor(group, QPalette::Button, ground);
    }
    return result;
}

} // namespace vanzer::desktop
