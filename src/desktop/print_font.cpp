#include "desktop/print_font.h"

#include <array>

#include <QFontDatabase>
#include <QFontInfo>
#include <QStringList>

namespace vanzer::desktop {

namespace {

struct StandIn {
    const char16_t* name;
    const char16_t* family;
};

/// The first one that is installed is taken. A narrow sans, so that a date in a column of 8 mm keeps its size, and one
/// with the measures of Times; all of them hold Latin, Greek and Cyrillic letters.
constexpr std::array<StandIn, 4> standIns{{{u"Agency FB", u"Liberation Sans Narrow"},
                                           {u"Agency FB", u"Roboto Condensed"},
                                           {u"Times new roman", u"Liberation Serif"},
                                           {u"Times new roman", u"Tinos"}}};

/// The family as the platform writes it; empty if it isn't installed.
QString installed(const QString& family) {
    for (const QString& known : QFontDatabase::families()) {
        if (known.compare(family, Qt::CaseInsensitive) == 0)
            return known;
    }
    return {};
}

} // namespace

Typeface typefaceFor(const QString& wanted) {
    if (const QString family = installed(wanted); !family.isEmpty())
        return {family, family};
    for (const StandIn& standIn : standIns) {
        const QString name = QString::fromUtf16(standIn.name);
        const QString family = QString::fromUtf16(standIn.family);
        if (name.compare(wanted, Qt::CaseInsensitive) == 0 && !installed(family).isEmpty())
            return {name, family};
    }
    QFont serif;
    serif.setStyleHint(QFont::Serif);
    serif.setFamily(QStringLiteral("serif"));
    const QString family = QFontInfo(serif).family();
    return {family, family};
}

QFont largeFont(const PrintFont& font) {
    QFont large(font.face.family);
    large.setPixelSize(emPixels);
    large.setBold(font.bold);
    large.setItalic(font.italic);
    large.setHintingPreference(QFont::PreferNoHinting);
    return large;
}

} // namespace vanzer::desktop
