// SPDX-License-Identifier: MIT
#include "desktop/plain_text.h"

#include <QTextDocument>

namespace vanzer::desktop {

QString testoSemplice(const QString& text) {
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text) : text;
}

} // namespace vanzer::desktop
