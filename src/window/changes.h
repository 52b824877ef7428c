// SPDX-License-Identifier: MIT
// Tracks fields of the destination and its parameters that were changed and not stored. Users are asked before such
// fields are cleared or reloaded, scripts are not.
#pragma once

#include "window/form.h"

namespace vanzer {

/// Takes the present texts of the fields as the stored ones.
void rememberFields(Form& form);

/// The kinds of changed fields, in the user's words: "nazione", "partenza". Empty if none was changed.
[[nodiscard]] QStringList campiCambiati(const Form& form);

/// The texts of all these fields by control name, and the names of the changed ones.
[[nodiscard]] TestiDeiCampi testiDeiCampi(const Form& form);
[[nodiscard]] QStringList nomiDeiCambiati(const Form& form);
/// Sets the texts in `typed` as changed and not stored. The present texts of all fields count as stored. Ignores names
/// of other controls.
void putFieldsBack(Form& form, const TestiDeiCampi& typed);

/// To be called before fields or legs are cleared or reloaded. Leaves an open stretch by its usual way, and asks once
/// whether to store changed fields. False if the user cancels or the fields can't be stored.
[[nodiscard]] bool leaveChanges(Form& form);
/// The same for the stretch alone, and for the fields alone.
[[nodiscard]] bool leaveStretch(Form& form);
[[nodiscard]] bool leaveFields(Form& form);

/// Keeps what the user typed during a reload that the user didn't ask for. Does nothing in a script.
class CampiTenuti {
  public:
    explicit CampiTenuti(Form& form);
    ~CampiTenuti();
    CampiTenuti(const CampiTenuti&) = delete;
    CampiTenuti& operator=(const CampiTenuti&) = delete;

  private:
    Form& form_;
    QStringList typed_; ///< empty if nothing was changed
};

} // namespace vanzer
