// The commands that act on one control as the user's hand would, or look at it.
#pragma once

#include <QJsonObject>
#include <QStringView>

#include "toolkit/control.h"

namespace vanzer::batch {

struct ControlCommand {
    QStringView word;
    bool refusable; ///< the control must be visible and enabled through all its frames
    bool acts;      ///< as the user's hand does, which waits while a command is at work
    /// `argument` is what stands behind the control's name.
    QJsonObject (*run)(Control& control, const QString& argument);
};

/// Null if there is no such command.
[[nodiscard]] const ControlCommand* controlCommand(QStringView word);

} // namespace vanzer::batch
