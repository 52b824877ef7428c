// SPDX-License-Identifier: MIT
// The table during a calculation. In a window it shows the rows so far.
#pragma once

#include "schedule/growing_rows.h"
#include "window/form.h"

namespace vanzer {

/// Exists while the tests of a calculation run. From the first showing on, the table takes no clicks. The destructor
/// empties it.
class VistaCrescente {
  public:
    VistaCrescente(Form& form, const std::vector<RigaDiLavoro>& work, TestiViandoria texts);
    ~VistaCrescente();
    VistaCrescente(const VistaCrescente&) = delete;
    VistaCrescente& operator=(const VistaCrescente&) = delete;

    /// Begins another test. The rows of the last one stay in view until the new test has some.
    void nuovaProva() { fresh_ = true; }
    /// Shows the rows so far, with the newest in view, if a frame is due and the pause after the last showing is over.
    /// The window draws them at the next yield.
    void showIfDue(const Viandoria& soFar);

  private:
    void show(const Viandoria& soFar);

    Form& form_;
    const std::vector<RigaDiLavoro>& work_;
    TestiViandoria texts_;
    bool enabled_;
    bool fresh_ = true;
    bool shown_ = false;
    RitmoMostre rhythm_;
};

} // namespace vanzer
