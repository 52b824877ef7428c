// The table while a calculation runs: where somebody looks, it shows the rows so far.
#pragma once

#include "schedule/growing_rows.h"
#include "window/form.h"

namespace vanzer {

/// Lives as long as the tests of a calculation. From the first showing on the table takes no clicks; in the end it is
/// empty again.
class VistaCrescente {
  public:
    VistaCrescente(Form& form, const std::vector<RigaDiLavoro>& work, TestiViandoria texts);
    ~VistaCrescente();
    VistaCrescente(const VistaCrescente&) = delete;
    VistaCrescente& operator=(const VistaCrescente&) = delete;

    /// The next rows belong to another test; what is shown stays until some of them are.
    void nuovaProva() { fresh_ = true; }
    /// Shows the rows so far, the newest in view, if a frame is due and the last showing is paid for. The next yield
    /// lets the window draw them.
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
