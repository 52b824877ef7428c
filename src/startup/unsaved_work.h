// SPDX-License-Identifier: MIT
// The draft: work that the user has typed and not stored. It is kept in a file beside the archive, so that neither a
// signal nor a loss of power destroys it. The next start offers it, and it comes back as unsaved work. It
// never changes the archive. Scripts have no draft.
#pragma once

#include <atomic>

#include <QThreadPool>

#include "core/draft.h"
#include "window/form.h"

namespace vanzer {

/// Whether something is typed and not stored: fields of the destination, parameters, legs, or a leg that isn't in the
/// table yet.
[[nodiscard]] bool nonSalvato(const Form& form);

/// All work that isn't stored. No value if there is none.
[[nodiscard]] std::optional<Bozza> lavoroNonSalvato(const Form& form);

/// Puts the draft back into the window, as unsaved work. Loads its destination, or makes it anew if it isn't stored any
/// more. Runs as a command of the user. False if the archive failed.
[[nodiscard]] bool resumeDraft(Form& form, const Bozza& draft);

/// Keeps the draft's file up to date with the work in the window.
class CustodeBozza {
  public:
    /// `form` must outlive this object. An existing draft isn't touched before offer().
    explicit CustodeBozza(Form& form);
    ~CustodeBozza();
    CustodeBozza(const CustodeBozza&) = delete;
    CustodeBozza& operator=(const CustodeBozza&) = delete;

    /// Offers an existing draft to the user. A refused or unreadable draft is renamed.
    void offer();
    /// Removes the draft once everything is stored. Costs nothing while there is no draft.
    void look();
    /// Writes the draft if the work has changed since the last time, or removes it. During a command, the work before
    /// the command counts. Writes in the background; a failure is told by the next call.
    void keep();
    /// From here on the running command doesn't follow the user's choices. The draft keeps the work from before the
    /// command.
    void notUsersChoice() { notChosen_ = true; }
    /// Called when the user has left the window and answered its questions. Removes the draft.
    void wasLeft();
    /// Writes for the last time and waits for it. The file doesn't change any more.
    void finish();
    /// Waits until everything written is safe on the disk.
    void wait() { pool_.waitForDone(); }

  private:
    void writes(const Bozza& draft);
    void takesAway();
    void setsAside(QLatin1String ending, const QString& told);

    Form& form_;
    const QString path_;
    std::optional<Bozza> before_; ///< the work before the running command, or before the last one
    std::optional<Bozza> written_;
    bool exists_ = false; ///< there is a draft of this window's work
    bool notChosen_ = false;
    std::atomic<bool> failed_ = false;
    QThreadPool pool_; ///< one thread, so that writes happen in order
};

} // namespace vanzer
