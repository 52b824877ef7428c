// SPDX-License-Identifier: MIT
// A print while it runs: its printer and sheet, the user's wish to stop, and failures.
#pragma once

#include <QStringList>

#include "reports/sheet.h"
#include "window/form.h"

namespace vanzer {

class CorsaDiStampa {
  public:
    explicit CorsaDiStampa(Form& form);
    ~CorsaDiStampa();
    CorsaDiStampa(const CorsaDiStampa&) = delete;
    CorsaDiStampa& operator=(const CorsaDiStampa&) = delete;

    [[nodiscard]] Foglio& foglio() { return sheet_; }
    /// Today's date and the window's caption.
    [[nodiscard]] Piede piede() const;

    /// Runs a step of the drawing, unless an earlier one has failed. A step that fails ends the print.
    template<typename Step> void step(const Step& step) {
        if (failed_)
            return;
        try {
            step();
        } catch (const PrinterError& error) {
            fallita(error.testo);
        }
    }
    /// Ends the print, and keeps the reason for the message at the end.
    void fallita(const QString& reason);
    /// Keeps a missing part for the message at the end. The print goes on.
    void isMissing(const QString& what);

    /// Whether a step has failed or the user has stopped the print.
    [[nodiscard]] bool finita() const { return failed_ || form_.stato.InterrompiStampa; }
    /// Sends the document, or drops it if the user stopped the print.
    void fineDocumento();
    /// Whether the user cancelled the document when asked for its file.
    [[nodiscard]] bool rinunciata() const { return unwanted_; }
    /// The files that the documents went into.
    [[nodiscard]] const QStringList& fileFatti() const { return files_; }
    /// Tells the user what is missing in the print, if anything.
    void tellLost();

  private:
    Form& form_;
    Foglio sheet_;
    bool failed_ = false;
    bool unwanted_ = false;
    QStringList missing_;
    QStringList files_;
};

} // namespace vanzer
