// Fields of the destination and its parameters that were changed and not stored. A user who sits before the window is
// asked before they are cleared or reloaded; a script is not.
#pragma once

#include "window/form.h"

namespace vanzer {

/// The fields as they stand count as stored.
void rememberFields(Form& form);

/// The kinds of fields that differ from what is stored, in words: "nazione", "partenza"; empty if none does.
[[nodiscard]] QStringList campiCambiati(const Form& form);

/// The texts of all of them, by the names of their controls; and the names of those that differ.
[[nodiscard]] TestiDeiCampi testiDeiCampi(const Form& form);
[[nodiscard]] QStringList nomiDeiCambiati(const Form& form);
/// Puts texts back as typed and not stored, those of other controls aside; the rest counts as stored as it stands.
void putFieldsBack(Form& form, const TestiDeiCampi& typed);

/// Before fields or legs are cleared or reloaded: an open stretch is left by its own way, and changed fields are asked
/// for, once. False if the user wants none of it, or what was to be stored can't be.
[[nodiscard]] bool leaveChanges(Form& form);
/// The same for the stretch alone, and for the fields alone.
[[nodiscard]] bool leaveStretch(Form& form);
[[nodiscard]] bool leaveFields(Form& form);

/// Keeps what the user typed over a reload that he didn't ask for. Does nothing in a script.
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
