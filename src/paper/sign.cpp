#include "paper/sign.h"

#include <QDir>

/// Named here, the resource comes out of the library into every program that draws.
static void bringSign() {
    Q_INIT_RESOURCE(sign);
}

namespace vanzer::paper {

QString signFile() {
    bringSign();
    return QStringLiteral(":/paper/segno.png");
}

} // namespace vanzer::paper
