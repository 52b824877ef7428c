// The draft: work that a user has typed and not stored, kept beside the archive so that neither a signal nor a loss of
// power takes it. It never changes the archive: it comes back as unsaved work when the next start offers it. A script
// has none.
#pragma once

#include <atomic>

#include <QThreadPool>

#include "core/draft.h"
#include "window/form.h"

namespace vanzer {

/// Whether something is typed and not stored: fields of the destination and its parameters, legs, a leg that isn't in
/// the table yet.
[[nodiscard]] bool nonSalvato(const Form& form);

/// All of it; nothing if there is none.
[[nodiscard]] std::optional<Bozza> lavoroNonSalvato(const Form& form);

/// A command of the user: the destination is loaded, or made anew if it isn't stored any more, and what was typed
/// stands in the window as it stood, unsaved. False if the archive failed.
[[nodiscard]] bool resumeDraft(Form& form, const Bozza& draft);

/// Keeps the draft's file as the work in the window is.
class CustodeBozza {
  public:
    /// The form lives longer. Nothing that lies there already is touched before it was offered.
    explicit CustodeBozza(Form& form);
    ~CustodeBozza();
    CustodeBozza(const CustodeBozza&) = delete;
    CustodeBozza& operator=(const CustodeBozza&) = delete;

    /// Offers a draft that lies there. One that is refused, or is none, gets another name.
    void offer();
    /// Takes the draft away once everything is stored. Costs nothing while there is none.
    void look();
    /// Writes the draft if the work has changed since it was written last, or takes it away. The work of a command that
    /// is running counts as it stood before it. The disk is written behind; a failure is told by the next call.
    void keep();
    /// What a command that is running does from here on isn't the user's choice: the work stays as it stood before it.
    void notHisChoice() { chosenForHim_ = true; }
    /// The window has been left by its own questions.
    void wasLeft();
    /// Writes for the last time and waits for it: from here on the file stays as it is.
    void finish();
    /// Waits until what was written is safe on the disk.
    void wait() { pool_.waitForDone(); }

  private:
    void writes(const Bozza& draft);
    void takesAway();
    void setsAside(QLatin1String ending, const QString& told);

    Form& form_;
    const QString path_;
    std::optional<Bozza> before_; ///< the work before the command that is running, or ran last
    std::optional<Bozza> written_;
    bool exists_ = false; ///< a draft of this window's work
    bool chosenForHim_ = false;
    std::atomic<bool> failed_ = false;
    QThreadPool pool_; ///< of one thread, so that one write comes after the other
};

} // namespace vanzer
