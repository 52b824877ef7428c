// SPDX-License-Identifier: MIT
// Commands that act on one control as a user would, or show its state.
#pragma once

#include <QJsonObject>
#include <QStringView>

#include "toolkit/control.h"

namespace vanzer::batch {

struct ControlCommand {
    QStringView word;
    bool refusable; ///< refused unless the control and all its frames are visible and enabled
    bool acts;      ///< an action of the user, which waits while a command is running
    /// Runs the command. `argument` is the text after the control's name.
    QJsonObject (*run)(Control& control, const QString& argument);
};

/// The command of that name; null if there is none.
[[nodiscard]] const ControlCommand* controlCommand(QStringView word);

} // namespace vanzer::batch
