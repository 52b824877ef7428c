// SPDX-License-Identifier: MIT
#include "batch/line.h"

#include <algorithm>

namespace vanzer::batch {

namespace {

/// The character for a letter after a backslash; a null character if there is none.
QChar meaning(QChar letter) {
    switch (letter.unicode()) {
    case u'n': return u'\n';
    case u't': return u'\t';
    case u'\\': return u'\\';
    default: return {};
    }
}

} // namespace

Line split(const QString& text) {
    const auto* const first = std::find_if(text.cbegin(), text.cend(), [](QChar c) { return c != u' '; });
    const auto* const end = std::find(first, text.cend(), u' ');
    Line line{QString(first, end - first), {}};
    if (end != text.cend())
        line.rest = QString(end + 1, text.cend() - end - 1);
    return line;
}

bool saysNothing(const QString& line) {
    return line.startsWith(u'#') || line.trimmed().isEmpty();
}

QString unescaped(const QString& text) {
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar stood = text[i] == u'\\' && i + 1 < text.size() ? meaning(text[i + 1]) : QChar();
        plain += stood.isNull() ? text[i] : stood;
        i += stood.isNull() ? 0 : 1;
    }
    return plain;
}

} // namespace vanzer::batch
