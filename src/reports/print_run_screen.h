// A print while it runs: the printer with its sheet, the user's wish to stop, and what failed on the way.
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

    /// Carries out a step of the drawing, unless one before it has failed. A step that fails ends the print.
    template<typename Step> void step(const Step& step) {
        if (failed_)
            return;
        try {
            step();
        } catch (const PrinterError& error) {
            fallita(error.testo);
        }
    }
    /// Keeps what failed, for the message at the end, and ends the print.
    void fallita(const QString& reason);
    /// Kept for the message at the end; the print goes on.
    void isMissing(const QString& what);

    /// A step has failed, or the user wants no more.
    [[nodiscard]] bool finita() const { return failed_ || form_.stato.InterrompiStampa; }
    /// Sends the document; one that the user gave up is dropped.
    void fineDocumento();
    /// The user didn't want the document after all.
    [[nodiscard]] bool rinunciata() const { return unwanted_; }
    /// The files that the documents went into.
    [[nodiscard]] const QStringList& fileFatti() const { return files_; }
    /// Tells what is missing of the print, if anything is.
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
