// SPDX-License-Identifier: MIT
// The window's controls and variables, without logic. Handlers work on this, and start-up connects them. A control is
// found by its name; an element of an array by its name and index: cmbOra(3).
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "core/draft.h"
#include "store/archive.h"
#include "toolkit/control.h"
#include "toolkit/grid.h"
#include "toolkit/ports.h"
#include "window/window_state.h"

namespace vanzer {

/// An array of controls with the same name.
template<typename T> class Serie {
  public:
    explicit Serie(std::vector<T*> controls) : controls_(std::move(controls)) {}
    [[nodiscard]] T& operator()(int i) const { return *controls_[static_cast<std::size_t>(i)]; }
    [[nodiscard]] int count() const { return static_cast<int>(controls_.size()); }
    [[nodiscard]] auto begin() const { return controls_.begin(); }
    [[nodiscard]] auto end() const { return controls_.end(); }

  private:
    std::vector<T*> controls_;
};

class TotaliTabella;
struct NumeriViaggio;
struct ViandoriaMostrata;
struct LineaDelTempo;

/// Frame numbers.
enum Riquadro {
    riquadroSoste = 0,    ///< sources of the stops
    riquadroTratto,       ///< editing of a stretch
    riquadroStradaTratto, ///< road type to assign, inside riquadroTratto
    riquadroStradaTappa,  ///< road type of a leg
    riquadroRiposi,
    riquadroVisite,      ///< hours of the visits
    riquadroPasti,       ///< hours of meals and night
    riquadroDatiTecnici, ///< contains the frames of stops, rests and hours
    riquadroMeta,        ///< the destination
    riquadroInizio,
    riquadroFine,
    riquadroPercorrenze,        ///< speeds and totals
    riquadroTappe,              ///< the leg editor
    riquadroPulsantiTappe = 14, ///< buttons of the leg editor
    riquadroMenu,
    riquadroAttesaStampa, ///< waiting note of a print
    riquadroCopia,        ///< source of a copy
    riquadroOpzioniStampa,
    riquadroTrattoCopia,     ///< the stretch to copy
    riquadroScambio = 22,    ///< export and import
    riquadroStampanti,       ///< choice of the printer
    riquadroGuida,           ///< the guide editor
    riquadroStampaGuida,     ///< print options of the guide
    riquadroListaStampa,     ///< which places, inside riquadroStampaGuida
    riquadroDettaglioStampa, ///< how much of each place, inside riquadroStampaGuida
    riquadroStato,           ///< the status line
};

/// Settings from the environment that never change.
struct Ambiente {
    QString directory;        ///< the program's directory
    QChar decimalMark = u'.'; ///< decimal mark of numbers shown or stored as text
    QString versione;         ///< "1.0.0"
};

class Form {
  public:
    Form(Ambiente surroundings, Ports& platform);
    ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    Ambiente ambiente;
    Ports& ports;
    store::Archive archivio;
    StatoFinestra stato;
    std::shared_ptr<NumeriViaggio> viaggio; ///< the current trip, made by start-up

    /// The control of that name, with its index if it is in an array. Case is ignored. Null if there is none.
    [[nodiscard]] Control* find(const QString& name) const;
    [[nodiscard]] const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }

    /// Shows a box and returns the answer, which is also stored in Risposta.
    int ask(const MessageBox& question);
    int domanda(const QString& text, const QString& title, Pulsanti buttons);
    /// A question to confirm that what `detail` names is deleted or overwritten.
    int domandaPericolosa(const QString& text, const QString& title, const QString& detail = {});
    /// A message with an OK button.
    void messaggio(const QString& text, const QString& title = {}, Icona icon = Icona::Nessuna);
    /// A message that says why something can't be done.
    void refuse(const QString& text, const QString& title = {});
    /// A message about files that were made. `files` are their paths.
    void messaggioFile(const QString& text, const QStringList& files, const QString& title = {},
                       Icona icon = Icona::Nessuna);
    /// Runs the waiting events.
    void yield() { ports.events.yield(); }
    /// The button that Enter presses.
    void setDefault(Button& button);
    /// Gives the control the focus.
    void setFocus(Control& control);
    [[nodiscard]] Control* focus() const { return focus_; }
    std::function<void(Control&)> onFocus;
    /// Called when the user chooses whether kilometres are typed as running totals.
    std::function<void()> onKmProgressivi;
    /// Called when the user asks for the manual.
    std::function<void()> onManuale;

    QString caption;
    bool chiusa = false;                    ///< the window has been left
    bool comandoInCorso = false;            ///< a command of the user is running
    bool interattiva = false;               ///< a user works with the window, not a script
    QStringList campiMemorizzati;           ///< texts of the destination's fields that count as stored
    bool campiDaRicordare = false;          ///< at the end of the command the present texts become those
    std::function<void()> beforeCommand;    ///< called before a command of the user begins
    std::function<bool()> saveDestination;  ///< stores the destination; false if that fails
    std::function<bool()> closeStretch;     ///< leaves the editing of a stretch; false if the user stays
    std::function<bool(int& row)> leaveRow; ///< called before the fields show another row; false if the user stays
    std::function<void()> guideRowShown;    ///< called when the grid's current row changes while the guide is open

    std::array<QString, 21> TipiGuidaDescrizione;
    std::array<bool, 21> TipiGuidaTempoObbligatorio{};

    /// The legs from before a calculation.
    std::optional<TestiTabella> tappeConservate;
    /// The legs that count as stored; no value if they aren't needed.
    std::optional<TappeTenute> tappeMemorizzate;
    /// True if CodiceMeta belongs to a destination that isn't stored yet. Its legs are then stored together with it.
    bool metaNuova = false;
    /// Totals of the legs in the table, as last calculated.
    std::shared_ptr<TotaliTabella> totali;
    /// The schedule in the table, as numbers; null while the table shows legs.
    std::shared_ptr<const ViandoriaMostrata> viandoria;
    /// The contents of the time line; null before it is first shown.
    std::shared_ptr<const LineaDelTempo> linea;

    std::vector<Frame*> frames;
    [[nodiscard]] Frame& frmframe(int i) const { return *frames[static_cast<std::size_t>(i)]; }

  private:
    std::vector<std::unique_ptr<Control>> controls_;
    std::map<QString, Control*> byName_;
    Control* focus_ = nullptr;

    template<typename T, typename... Args> T& one(const char* name, Frame* parent, Args... args);
    template<typename T, typename... Args> T& one(const char* name, int frame, Args... args) {
        return one<T>(name, frame == finestra ? nullptr : frames[static_cast<std::size_t>(frame)], args...);
    }
    template<typename T, typename... Args> Serie<T> many(const char* name, int frame, int count, Args... args);
    void buildFrames();
    bool framesBuilt_ = (buildFrames(), true);
    static constexpr int finestra = -1; // stands for the window in place of a frame

    TextBox& text(const char* name, int frame) { return one<TextBox>(name, frame); }
    Button& button(const char* name, int frame) { return one<Button>(name, frame); }
    CheckBox& check(const char* name, int frame) { return one<CheckBox>(name, frame); }
    Label& label(const char* name, int frame) { return one<Label>(name, frame); }
    ListControl& list(const char* name, int frame) { return one<ListControl>(name, frame, false); }
    ListControl& box(const char* name, int frame) { return one<ListControl>(name, frame, true); }
    Serie<Button> buttons(const char* name, int frame, int count) { return many<Button>(name, frame, count); }
    Serie<TextBox> texts(const char* name, int frame, int count) { return many<TextBox>(name, frame, count); }
    Serie<OptionButton> options(const char* name, int frame, int count) {
        return many<OptionButton>(name, frame, count);
    }
    Serie<ListControl> lists(const char* name, int frame, int count);

  public:
    // Destination
    TextBox& txtLocalita = text("txtLocalita", riquadroMeta);
    TextBox& txtNazione = text("txtNazione", riquadroMeta);
    TextBox& txtCodice = text("txtCodice", riquadroMeta);
    Serie<ListControl> cmbInizio = lists("cmbInizio", riquadroInizio, 5);
    TextBox& txtInizioGSett = text("txtInizioGSett", riquadroInizio);
    Serie<TextBox> txtFine = texts("txtFine", riquadroFine, 7);

    // Parameters
    Serie<ListControl> cmbMediaKm = lists("cmbMediaKm", riquadroPercorrenze, 4);
    Serie<Label> lblTipoStrada = many<Label>("lblTipoStrada", riquadroPercorrenze, 4);
    Serie<TextBox> txtKmTot = texts("txtKmTot", riquadroPercorrenze, 5);
    Serie<TextBox> txtTempo = texts("txtTempo", riquadroPercorrenze, 5);
    TextBox& txtTragh = text("txtTragh", riquadroPercorrenze);
    Serie<ListControl> cmbOra = clockLists("cmbOra");
    Serie<ListControl> cmbMin = clockLists("cmbMin");
    ListControl& cmbRipM = list("cmbRipM", riquadroRiposi);
    ListControl& cmbRipH = list("cmbRipH", riquadroRiposi);
    ListControl& cmbRipG = list("cmbRipG", riquadroRiposi);
    ListControl& cmbRipGG = list("cmbRipGG", riquadroRiposi);
    ListControl& cmbRange = list("cmbRange", riquadroPasti);
    ListControl& cmbSoste = list("cmbSoste", riquadroSoste);
    ListControl& cmbGiorni = list("cmbGiorni", riquadroSoste);
    Serie<Button> cmdDefault = buttons("cmdDefault", riquadroDatiTecnici, 3);
    Button& cmdHelpTotale1 = button("cmdHelpTotale1", riquadroDatiTecnici);
    Button& cmdHelpTotale2 = button("cmdHelpTotale2", riquadroDatiTecnici);
    Button& cmdHelpTt = button("cmdHelpTt", riquadroDatiTecnici);

    // Menu
    Button& cmdNuovo = button("cmdNuovo", finestra);
    Button& cmdSalva = button("cmdSalva", finestra);
    Button& cmdRicerca = button("cmdRicerca", finestra);
    Button& cmdCancMeta = button("cmdCancMeta", finestra);
    Button& cmdExport = button("cmdExport", finestra);
    Button& cmdEsce = button("cmdEsce", finestra);
    Button& cmdItinerario = button("cmdItinerario", riquadroMenu);
    Button& cmdGuidaCitta = button("cmdGuidaCitta", riquadroMenu);
    Button& cmdCalcola = button("cmdCalcola", riquadroMenu);
    Button& cmdStampa = button("cmdStampa", riquadroMenu);
    Button& cmdCancItin = button("cmdCancItin", riquadroMenu);
    Button& cmdModStrada = button("cmdModStrada", riquadroMenu);

    // Table, status line, search lists
    Grid& mfgTab = one<Grid>("mfgTab", finestra, 30, 20);
    Label& lblElaborazione = label("lblElaborazione", riquadroStato);
    Label& lblAvviso = label("lblAvviso", riquadroStato);
    TextBox& txtBase = text("txtBase", riquadroStato);
    TextBox& txtPerc = text("txtPerc", riquadroStato);
    Label& lblPath = label("lblPath", riquadroStato);
    Button& cmdConverte = button("cmdConverte", riquadroStato);
    Button& cmdHelpGenerico = button("cmdHelpGenerico", riquadroStato);
    Label& lblAutore = label("lblAutore", finestra);
    ListControl& cmbRicerca = box("cmbRicerca", finestra);
    ListControl& cmbRicercaTappa = box("cmbRicercaTappa", finestra);
    Picture& imgLogoSito = one<Picture>("imgLogoSito", finestra);
    Serie<Picture> imgLogo1 = many<Picture>("imgLogo1", finestra, 2);

    // Leg editor
    TextBox& txtTappa = text("txtTappa", riquadroTappe);
    TextBox& txtKm = text("txtKm", riquadroTappe);
    CheckBox& chkKm = check("chkKm", riquadroTappe);
    TextBox& txtNumStrada = text("txtNumStrada", riquadroTappe);
    Serie<OptionButton> optStrada = options("optStrada", riquadroStradaTappa, 4);
    Serie<ListControl> cmbSosta = lists("cmbSosta", riquadroTappe, 3);
    CheckBox& chkEndDay = check("chkEndDay", riquadroTappe);
    Serie<CheckBox> chkMeta = many<CheckBox>("chkMeta", riquadroTappe, 2);
    TextBox& txtRiga = text("txtRiga", riquadroTappe);
    Button& cmdHelpKm = button("cmdHelpKm", riquadroTappe);
    Button& cmdInserisce = button("cmdInserisce", riquadroPulsantiTappe);
    Button& cmdAggiunge = button("cmdAggiunge", riquadroPulsantiTappe);
    Button& cmdCancella = button("cmdCancella", riquadroPulsantiTappe);
    Button& cmdRicalcola = button("cmdRicalcola", riquadroPulsantiTappe);
    Button& cmdRitorno = button("cmdRitorno", riquadroPulsantiTappe);
    Button& cmdCerca = button("cmdCerca", riquadroPulsantiTappe);
    Button& cmdFine = button("cmdFine", riquadroPulsantiTappe);
    Button& cmdMemorizza = button("cmdMemorizza", riquadroPulsantiTappe);
    Button& cmdDuplica = button("cmdDuplica", riquadroPulsantiTappe);
    Button& cmdAzzeraSoste = button("cmdAzzeraSoste", riquadroPulsantiTappe);
    Button& cmdTrasferisce = button("cmdTrasferisce", riquadroPulsantiTappe);
    Button& cmdMapPoint = button("cmdMapPoint", riquadroPulsantiTappe);
    Button& cmdSelezionaMete = button("cmdSelezionaMete", riquadroPulsantiTappe);
    Serie<Button> cmdHelpItin = buttons("cmdHelpItin", riquadroPulsantiTappe, 5);
    ListControl& lstMete = box("lstMete", riquadroTappe);

    // Editing a stretch
    Serie<TextBox> txttappasel = texts("txttappasel", riquadroTratto, 3);
    Serie<Button> cmdTappaSEl = buttons("cmdTappaSEl", riquadroTratto, 5);
    Serie<OptionButton> optTStrada = options("optTStrada", riquadroStradaTratto, 4);
    CheckBox& chkTappaSingola = check("chkTappaSingola", riquadroTratto);

    // Source of a copy, the stretch to copy
    Grid& mfgCopia = one<Grid>("mfgCopia", riquadroCopia, 30, 20);
    Label& lblLista = label("lblLista", riquadroCopia);
    Serie<TextBox> txtInsTappa = texts("txtInsTappa", riquadroTrattoCopia, 2);
    Serie<Label> lblDuplica = many<Label>("lblDuplica", riquadroTrattoCopia, 2);
    Serie<TextBox> txtInsNum = texts("txtInsNum", riquadroTrattoCopia, 2);
    Serie<TextBox> txtInsLoc = texts("txtInsLoc", riquadroTrattoCopia, 2);
    Serie<TextBox> txtInsNS = texts("txtInsNS", riquadroTrattoCopia, 2);
    Serie<TextBox> txtInsKm = texts("txtInsKm", riquadroTrattoCopia, 2);
    Serie<Button> cmdAssegna = buttons("cmdAssegna", riquadroTrattoCopia, 2);
    CheckBox& chkInsSoste = check("chkInsSoste", riquadroTrattoCopia);
    Serie<Button> cmdInsEsegui = buttons("cmdInsEsegui", riquadroTrattoCopia, 2);
    Button& cmdHelpDuplica = button("cmdHelpDuplica", riquadroTrattoCopia);

    // Exchange
    Serie<Button> cmdImportExport = buttons("cmdImportExport", riquadroScambio, 2);
    Serie<Grid> mfgImExp = many<Grid>("mfgImExp", riquadroScambio, 2, 15, 5);
    Serie<Button> cmdTutto = buttons("cmdTutto", riquadroScambio, 2);
    Serie<Button> cmdImExp = buttons("cmdImExp", riquadroScambio, 2);
    Label& lblExLista = label("lblExLista", riquadroScambio);
    Label& lblExSelez = label("lblExSelez", riquadroScambio);
    Label& lblExIstruzioni = label("lblExIstruzioni", riquadroScambio);
    Button& cmdHelpExport = button("cmdHelpExport", riquadroScambio);

    // Guide editor
    TextBox& txtGCitta = text("txtGCitta", riquadroGuida);
    TextBox& txtGGruppo = text("txtGGruppo", riquadroGuida);
    TextBox& txtGDescr = text("txtGDescr", riquadroGuida);
    ListControl& cmbGTipo = list("cmbGTipo", riquadroGuida);
    ListControl& cmbGH = list("cmbGH", riquadroGuida);
    ListControl& cmbGM = list("cmbGM", riquadroGuida);
    Label& lblGNota = label("lblGNota", riquadroGuida);
    Button& cmdFind = button("cmdFind", riquadroGuida);
    Button& cmdSalvaRiga = button("cmdSalvaRiga", riquadroGuida);
    Button& cmdCancellaRiga = button("cmdCancellaRiga", riquadroGuida);
    Button& cmdFineInserimento = button("cmdFineInserimento", riquadroGuida);
    Button& cmdStampaGuidaCitta = button("cmdStampaGuidaCitta", riquadroGuida);
    Serie<Button> cmdHelpGuida = buttons("cmdHelpGuida", riquadroGuida, 2);
    Serie<OptionButton> optGuidaListaStampa = options("optGuidaListaStampa", riquadroListaStampa, 2);
    Serie<OptionButton> optGuidaDettaglioStampa = options("optGuidaDettaglioStampa", riquadroDettaglioStampa, 2);
    Serie<Button> cmdStampaGuida = buttons("cmdStampaGuida", riquadroStampaGuida, 2);

    // Print options, choice of the printer, waiting note
    CheckBox& chkTabella = check("chkTabella", riquadroOpzioniStampa);
    CheckBox& chkModuli = check("chkModuli", riquadroOpzioniStampa);
    CheckBox& chkFrontespizio = check("chkFrontespizio", riquadroOpzioniStampa);
    Serie<CheckBox> chkVociFrontespizio = many<CheckBox>("chkVociFrontespizio", riquadroOpzioniStampa, 4);
    Label& txtStampasuFile = label("txtStampasuFile", riquadroOpzioniStampa);
    Label& Label3 = label("Label3", riquadroOpzioniStampa);
    TextBox& txtfileTabella = text("txtfileTabella", riquadroOpzioniStampa);
    Serie<Button> cmdEsegui = buttons("cmdEsegui", riquadroOpzioniStampa, 2);
    ListControl& lstStampanti = box("lstStampanti", riquadroStampanti);
    Serie<Button> cmdSelStampante = buttons("cmdSelStampante", riquadroStampanti, 2);
    Serie<Label> lblStampaInCorso = many<Label>("lblStampaInCorso", riquadroAttesaStampa, 2);
    CheckBox& chkLinea = check("chkLinea", riquadroOpzioniStampa);
    Button& cmdCalendario = button("cmdCalendario", riquadroOpzioniStampa);
    Button& cmdFoglio = button("cmdFoglio", riquadroOpzioniStampa);

    // Picture of the trip, manual, first steps
    Button& cmdLinea = button("cmdLinea", riquadroStato);
    Frame& frmLinea = one<Frame>("frmLinea", finestra);
    Button& cmdManuale = button("cmdManuale", riquadroStato);
    Frame& frmPrimiPassi = one<Frame>("frmPrimiPassi", finestra);
    Label& lblPrimiPassi = one<Label>("lblPrimiPassi", &frmPrimiPassi);
    Button& cmdPrimoViaggio = one<Button>("cmdPrimoViaggio", &frmPrimiPassi);
    Button& cmdImportaViaggi = one<Button>("cmdImportaViaggi", &frmPrimiPassi);
    Button& cmdViaggiEsempio = one<Button>("cmdViaggiEsempio", &frmPrimiPassi);

  private:
    Serie<ListControl> clockLists(const char* name);
};

} // namespace vanzer
