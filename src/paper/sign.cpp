// SPDX-License-Identifier: MIT
#include "paper/sign.h"

#include <QDir>

/// Without this the linker would leave the library's resource out of the programs.
static void bringSign() {
    Q_INIT_RESOURCE(sign);
}

namespace vanzer::paper {

QString signFile() {
    bringSign();
    return QStringLiteral(":/paper/segno.png");
}

} // namespace vanzer::paper
