// The one window: every control and every variable of it, and no logic. Handlers and engines' callers work on this;
// start-up builds the wiring. A control's name is its key, an array's element is written with its index: cmbOra(3).
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "core/columns.h"
#include "core/draft.h"
#include "core/trip_state.h"
#include "schedule/totals.h"
#include "store/archive.h"
#include "toolkit/control.h"
#include "toolkit/grid.h"
#include "toolkit/ports.h"

namespace vanzer {

/// An array of controls of one name.
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

struct ViandoriaMostrata;
struct LineaDelTempo;

/// What the surroundings give the window once and for all.
struct Ambiente {
    QString directory;        ///< the program's directory
    QChar decimalMark = u'.'; ///< of numbers that are shown or stored as text
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
    StatoViaggio stato;
    Colonne colonne;

    /// The control of that name, written with its index if it stands in an array; capitals ignored; null if unknown.
    [[nodiscard]] Control* find(const QString& name) const;
    [[nodiscard]] const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }

    /// The answer stays in Risposta.
    int chiede(const MessageBox& question);
    int domanda(const QString& text, const QString& title, Pulsanti buttons);
    /// A question whose yes deletes or overwrites what `detail` names.
    int domandaPericolosa(const QString& text, const QString& title, const QString& detail = {});
    /// A message with an OK button.
    void messaggio(const QString& text, const QString& title = {}, Icona icon = Icona::Nessuna);
    /// A message that tells why something can't be done.
    void rifiuta(const QString& text, const QString& title = {});
    /// A message about files that were made, given by their paths.
    void messaggioFile(const QString& text, const QStringList& files, const QString& title = {},
                       Icona icon = Icona::Nessuna);
    /// Lets the waiting events run.
    void yield() { ports.events.yield(); }
    /// The button that Enter presses.
    void setDefault(Button& button);
    /// The control that is to have the focus.
    void setFocus(Control& control);
    [[nodiscard]] Control* focus() const { return focus_; }
    std::function<void(Control&)> onFocus;
    /// The user has chosen whether kilometres are typed as running totals.
    std::function<void()> onKmProgressivi;
    /// The user asks for the manual.
    std::function<void()> onManuale;

    QString caption;
    bool chiusa = false;                      ///< the window has been left
    bool comandoInCorso = false;              ///< a command of the user is being carried out
    bool interattiva = false;                 ///< a user sits before the window, not a script
    QStringList campiMemorizzati;             ///< the fields of the destination as they count as stored
    bool campiDaRicordare = false;            ///< at the end of the command they count so as they stand then
    std::function<void()> primaDelComando;    ///< raised before a command of the user begins
    std::function<bool()> chiudeTratto;       ///< leaves the editing of a stretch; false if the user stays
    std::function<bool(int& row)> lasciaRiga; ///< before the fields show another row: false if the user stays on his
    std::function<void()> guideRowShown;      ///< raised when the grid's current row changes while the guide is open

    std::array<QString, 21> TipiGuidaDescrizione;
    std::array<bool, 21> TipiGuidaTempoObbligatorio{};

    /// The legs as they stood before a calculation touched them.
    std::optional<TestiTabella> tappeConservate;
    /// The legs that count as stored; nothing where nobody asks for them.
    std::optional<TappeTenute> tappeMemorizzate;
    /// CodiceMeta is that of a destination that isn't stored yet: its legs are stored with it.
    bool metaNuova = false;
    /// Of the legs in the table, as they were last worked out.
    TotaliTabella totali;
    /// The schedule in the table, as numbers; null while it shows legs.
    std::shared_ptr<const ViandoriaMostrata> viandoria;
    /// What the picture of the schedule shows; null before it was asked for.
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
    static constexpr int finestra = -1; // the window itself, in place of a frame

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
    TextBox& txtLocalita = text("txtLocalita", 8);
    TextBox& txtNazione = text("txtNazione", 8);
    TextBox& txtCodice = text("txtCodice", 8);
    Serie<ListControl> cmbInizio = lists("cmbInizio", 9, 5);
    TextBox& txtInizioGSett = text("txtInizioGSett", 9);
    Serie<TextBox> txtFine = texts("txtFine", 10, 7);

    // Parameters
    Serie<ListControl> cmbMediaKm = lists("cmbMediaKm", 11, 4);
    Serie<Label> lblTipoStrada = many<Label>("lblTipoStrada", 11, 4);
    Serie<TextBox> txtKmTot = texts("txtKmTot", 11, 5);
    Serie<TextBox> txtTempo = texts("txtTempo", 11, 5);
    TextBox& txtTragh = text("txtTragh", 11);
    Serie<ListControl> cmbOra = clockLists("cmbOra");
    Serie<ListControl> cmbMin = clockLists("cmbMin");
    ListControl& cmbRipM = list("cmbRipM", 4);
    ListControl& cmbRipH = list("cmbRipH", 4);
    ListControl& cmbRipG = list("cmbRipG", 4);
    ListControl& cmbRipGG = list("cmbRipGG", 4);
    ListControl& cmbRange = list("cmbRange", 6);
    ListControl& cmbSoste = list("cmbSoste", 0);
    ListControl& cmbGiorni = list("cmbGiorni", 0);
    Serie<Button> cmdDefault = buttons("cmdDefault", 7, 3);
    Button& cmdHelpTotale1 = button("cmdHelpTotale1", 7);
    Button& cmdHelpTotale2 = button("cmdHelpTotale2", 7);
    Button& cmdHelpTt = button("cmdHelpTt", 7);

    // Menu
    Button& cmdNuovo = button("cmdNuovo", finestra);
    Button& cmdSalva = button("cmdSalva", finestra);
    Button& cmdRicerca = button("cmdRicerca", finestra);
    Button& cmdCancMeta = button("cmdCancMeta", finestra);
    Button& cmdExport = button("cmdExport", finestra);
    Button& cmdEsce = button("cmdEsce", finestra);
    Button& cmdItinerario = button("cmdItinerario", 15);
    Button& cmdGuidaCitta = button("cmdGuidaCitta", 15);
    Button& cmdCalcola = button("cmdCalcola", 15);
    Button& cmdStampa = button("cmdStampa", 15);
    Button& cmdCancItin = button("cmdCancItin", 15);
    Button& cmdModStrada = button("cmdModStrada", 15);

    // Table, status line, search lists
    Grid& mfgTab = one<Grid>("mfgTab", finestra, 30, 20);
    Label& lblElaborazione = label("lblElaborazione", 28);
    Label& lblAvviso = label("lblAvviso", 28);
    TextBox& txtBase = text("txtBase", 28);
    TextBox& txtPerc = text("txtPerc", 28);
    Label& lblPath = label("lblPath", 28);
    Button& cmdConverte = button("cmdConverte", 28);
    Button& cmdHelpGenerico = button("cmdHelpGenerico", 28);
    Label& lblAutore = label("lblAutore", finestra);
    ListControl& cmbRicerca = box("cmbRicerca", finestra);
    ListControl& cmbRicercaTappa = box("cmbRicercaTappa", finestra);
    Picture& imgLogoSito = one<Picture>("imgLogoSito", finestra);
    Serie<Picture> imgLogo1 = many<Picture>("imgLogo1", finestra, 2);

    // Leg editor
    TextBox& txtTappa = text("txtTappa", 12);
    TextBox& txtKm = text("txtKm", 12);
    CheckBox& chkKm = check("chkKm", 12);
    TextBox& txtNumStrada = text("txtNumStrada", 12);
    Serie<OptionButton> optStrada = options("optStrada", 3, 4);
    Serie<ListControl> cmbSosta = lists("cmbSosta", 12, 3);
    CheckBox& chkEndDay = check("chkEndDay", 12);
    Serie<CheckBox> chkMeta = many<CheckBox>("chkMeta", 12, 2);
    TextBox& txtRiga = text("txtRiga", 12);
    Button& cmdHelpKm = button("cmdHelpKm", 12);
    Button& cmdInserisce = button("cmdInserisce", 14);
    Button& cmdAggiunge = button("cmdAggiunge", 14);
    Button& cmdCancella = button("cmdCancella", 14);
    Button& cmdRicalcola = button("cmdRicalcola", 14);
    Button& cmdRitorno = button("cmdRitorno", 14);
    Button& cmdCerca = button("cmdCerca", 14);
    Button& cmdFine = button("cmdFine", 14);
    Button& cmdMemorizza = button("cmdMemorizza", 14);
    Button& cmdDuplica = button("cmdDuplica", 14);
    Button& cmdAzzeraSoste = button("cmdAzzeraSoste", 14);
    Button& cmdTrasferisce = button("cmdTrasferisce", 14);
    Button& cmdMapPoint = button("cmdMapPoint", 14);
    Button& cmdSelezionaMete = button("cmdSelezionaMete", 14);
    Serie<Button> cmdHelpItin = buttons("cmdHelpItin", 14, 5);
    ListControl& lstMete = box("lstMete", 12);

    // Editing a stretch
    Serie<TextBox> txttappasel = texts("txttappasel", 1, 3);
    Serie<Button> cmdTappaSEl = buttons("cmdTappaSEl", 1, 5);
    Serie<OptionButton> optTStrada = options("optTStrada", 2, 4);
    CheckBox& chkTappaSingola = check("chkTappaSingola", 1);

    // Source of a copy, the stretch to copy
    Grid& mfgCopia = one<Grid>("mfgCopia", 17, 30, 20);
    Label& lblLista = label("lblLista", 17);
    Serie<TextBox> txtInsTappa = texts("txtInsTappa", 19, 2);
    Serie<Label> lblDuplica = many<Label>("lblDuplica", 19, 2);
    Serie<TextBox> txtInsNum = texts("txtInsNum", 19, 2);
    Serie<TextBox> txtInsLoc = texts("txtInsLoc", 19, 2);
    Serie<TextBox> txtInsNS = texts("txtInsNS", 19, 2);
    Serie<TextBox> txtInsKm = texts("txtInsKm", 19, 2);
    Serie<Button> cmdAssegna = buttons("cmdAssegna", 19, 2);
    CheckBox& chkInsSoste = check("chkInsSoste", 19);
    Serie<Button> cmdInsEsegui = buttons("cmdInsEsegui", 19, 2);
    Button& cmdHelpDuplica = button("cmdHelpDuplica", 19);

    // Exchange
    Serie<Button> cmdImportExport = buttons("cmdImportExport", 22, 2);
    Serie<Grid> mfgImExp = many<Grid>("mfgImExp", 22, 2, 15, 5);
    Serie<Button> cmdTutto = buttons("cmdTutto", 22, 2);
    Serie<Button> cmdImExp = buttons("cmdImExp", 22, 2);
    Label& lblExLista = label("lblExLista", 22);
    Label& lblExSelez = label("lblExSelez", 22);
    Label& lblExIstruzioni = label("lblExIstruzioni", 22);
    Button& cmdHelpExport = button("cmdHelpExport", 22);

    // Guide editor
    TextBox& txtGCitta = text("txtGCitta", 24);
    TextBox& txtGGruppo = text("txtGGruppo", 24);
    TextBox& txtGDescr = text("txtGDescr", 24);
    ListControl& cmbGTipo = list("cmbGTipo", 24);
    ListControl& cmbGH = list("cmbGH", 24);
    ListControl& cmbGM = list("cmbGM", 24);
    Label& lblGNota = label("lblGNota", 24);
    Button& cmdFind = button("cmdFind", 24);
    Button& cmdSalvaRiga = button("cmdSalvaRiga", 24);
    Button& cmdCancellaRiga = button("cmdCancellaRiga", 24);
    Button& cmdFineInserimento = button("cmdFineInserimento", 24);
    Button& cmdStampaGuidaCitta = button("cmdStampaGuidaCitta", 24);
    Serie<Button> cmdHelpGuida = buttons("cmdHelpGuida", 24, 2);
    Serie<OptionButton> optGuidaListaStampa = options("optGuidaListaStampa", 26, 2);
    Serie<OptionButton> optGuidaDettaglioStampa = options("optGuidaDettaglioStampa", 27, 2);
    Serie<Button> cmdStampaGuida = buttons("cmdStampaGuida", 25, 2);

    // Print options, choice of the printer, waiting note
    CheckBox& chkTabella = check("chkTabella", 18);
    CheckBox& chkModuli = check("chkModuli", 18);
    CheckBox& chkFrontespizio = check("chkFrontespizio", 18);
    Serie<CheckBox> chkVociFrontespizio = many<CheckBox>("chkVociFrontespizio", 18, 4);
    Label& txtStampasuFile = label("txtStampasuFile", 18);
    Label& Label3 = label("Label3", 18);
    TextBox& txtfileTabella = text("txtfileTabella", 18);
    Serie<Button> cmdEsegui = buttons("cmdEsegui", 18, 2);
    ListControl& lstStampanti = box("lstStampanti", 23);
    Serie<Button> cmdSelStampante = buttons("cmdSelStampante", 23, 2);
    Serie<Label> lblStampaInCorso = many<Label>("lblStampaInCorso", 16, 2);
    CheckBox& chkLinea = check("chkLinea", 18);
    Button& cmdCalendario = button("cmdCalendario", 18);
    Button& cmdFoglio = button("cmdFoglio", 18);

    // Picture of the trip, manual, first steps
    Button& cmdLinea = button("cmdLinea", 28);
    Frame& frmLinea = one<Frame>("frmLinea", finestra);
    Button& cmdManuale = button("cmdManuale", 28);
    Frame& frmPrimiPassi = one<Frame>("frmPrimiPassi", finestra);
    Label& lblPrimiPassi = one<Label>("lblPrimiPassi", &frmPrimiPassi);
    Button& cmdPrimoViaggio = one<Button>("cmdPrimoViaggio", &frmPrimiPassi);
    Button& cmdImportaViaggi = one<Button>("cmdImportaViaggi", &frmPrimiPassi);
    Button& cmdViaggiEsempio = one<Button>("cmdViaggiEsempio", &frmPrimiPassi);

  private:
    Serie<ListControl> clockLists(const char* name);
};

} // namespace vanzer
