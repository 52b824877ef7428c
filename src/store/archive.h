// The archive as the rest of the system sees it: one file beside the program, its tables, and numbered slots of records
// opened by query texts.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include <QString>
#include <QStringList>

#include "store/daily_copy.h"
#include "store/database.h"
#include "store/guide_reader.h"
#include "store/query.h"
#include "store/recordset.h"
#include "store/row_set.h"
#include "store/schema.h"

namespace vanzer::store {

/// The archive's file, beside the program.
inline constexpr QLatin1String nomeArchivio("Vanzer.mdb");
/// The file in which a new archive and a rebuilt one are made.
inline constexpr QLatin1String nomeRicostruzione("DBTemp.mdb");

/// One table as a whole, records in the order in which they were added: text, yes/no, or no value.
struct TabellaLetta {
    using Cella = std::variant<std::monostate, bool, QString>;
    QStringList campi;
    std::vector<std::vector<Cella>> record;
};

/// Every operation throws StoreError when it fails.
class Archive {
  public:
    using Progress = std::function<void(qint64 done, qint64 total)>;
    using PrimaDellUso = std::function<void(Database& archive)>;
    /// What to do where there is no archive, but copies of one.
    enum class SenzaArchivio { Riprende, Comincia, Rinuncia };
    using SeManca = std::function<SenzaArchivio(const CopiaTrovata& copy)>;
    /// What the user should know of an opening.
    struct Apertura {
        QString giornaleEstraneo;  ///< where another archive's journal lies now; empty if there was none
        QString archivioDiPrima;   ///< where the file from before a rebuild lies; empty if there was none
        qint64 valoriTagliati = 0; ///< in the rebuild: values too long for their fields
    };

    static constexpr int numeroDatabase = 3;
    static constexpr int numeroSlot = 11;
    static constexpr int slotAppoggio = 7; ///< for whatever a loop needs beside the slots of the tables

    /// Nothing is opened yet. The directory gets a separator at its end.
    explicit Archive(const QString& directory);
    Archive(const Archive&) = delete;
    Archive& operator=(const Archive&) = delete;
    ~Archive();

    QString PercorsoProgramma;
    QString PercorsoDatabase; ///< the file to make or open next
    QString StringaSQL;       ///< the query to open next
    bool Rettifica = false;   ///< the file must be rebuilt

    /// 0 is the archive in use, 1 the old file during a rebuild. Null while closed.
    [[nodiscard]] Database* Db(int index) const { return databases_.at(static_cast<std::size_t>(index)).get(); }
    /// The number of a slot is the number of the table that it serves.
    [[nodiscard]] Recordset& Rs(int slot) { return slots_.at(static_cast<std::size_t>(slot)); }

    /// Makes "Vanzer.mdb" if there is none, else opens it and rebuilds it where its tables aren't the declared ones,
    /// then opens slots 1 to 6. A new file and a rebuild are made in "DBTemp.mdb", which takes the name when it is
    /// whole and safe on the disk; the file from before a rebuild stays among the copies. `before` gets a file that was
    /// there already, locked, before anything in it is changed. `missing` is asked where there are copies but no
    /// archive, with the newest that has trips; without it, or if it gives up, the opening fails with NotFound. Throws
    /// Unlike for a file to be rebuilt whose fields stand in another order.
    Apertura openArchive(const PrimaDellUso& before = {}, const SeManca& missing = {});
    void close();

    void DatabaseCrea(int db, bool& created);
    void DatabaseApre(int db);
    /// All six tables, or none.
    void DatabaseTabelleCreazione(int db);
    void DatabaseTabellaCrea(int db, int table);
    /// Sets `Rettifica` if a table or a declared field is missing or a text has another size; fields that aren't
    /// declared don't count. Adds missing indexes.
    void DataBaseTabelleAggiorna(int db);
    void DataBaseVerificaIndici(int db, int table);

    /// Opens `StringaSQL`, or a query put together before, in a slot.
    void RecordSetImposta(int db, int slot);
    void RecordSetImposta(int db, int slot, const Query& query);
    /// Records found by the last RecordSetImposta. Counted when first asked: to be asked before that slot is written.
    [[nodiscard]] double NumeroRecord();
    /// Slots 1 to 6 on their whole tables.
    void RecordSetImpostaDefault();

    /// Position of a field in an open slot; nothing if there is none.
    [[nodiscard]] std::optional<int> CercaCampoTabella(int slot, const QString& name);
    /// For each column name that is a field of the slot, its number from 1 and the field's position from 0 as two
    /// digits each, and "\".
    [[nodiscard]] QString CaricaRiferimentiVettoreCampiTabelleDatabase(int slot, const QStringList& columns);

    /// Deletes the records of a table whose field is like the value (the whole table if the field is empty). `progress`
    /// hears the begin and the end if there is anything to delete.
    void CancellaTabella(int table, const QString& field, const QString& value, const Progress& progress = {});

    /// Whether a place of the guide has a part in brackets. Costs what has, not the size of the guide.
    [[nodiscard]] bool guidaConParentesi();
    /// What the guide of the archive in use knows of a place.
    [[nodiscard]] LettoreGuida& guida();

    /// Exactly these entries of the guide carry the mark of use from here on. Costs what is marked before and after,
    /// not the size of the guide, and writes only what changes. They can be made anew: see writeDerived.
    void putMarksBack(const InsiemeDiRighe& used);

    /// Commands on the archive in use, see Database.
    void beginCommand() { archive().beginCommand(); }
    void commitCommand() { archive().commitCommand(); }
    void rollbackCommand() noexcept;
    void storeSoFar() { archive().storeSoFar(); }
    void undoSoFar() noexcept;
    void writeDerived(const std::function<void()>& write) { archive().writeDerived(write); }

    [[nodiscard]] TabellaLetta tabella(const QString& name);
    /// The most characters that a text field of the table holds.
    [[nodiscard]] int dimensioneCampo(int table, QStringView field) const;
    [[nodiscard]] QStringList indici(const QString& table) { return archive().indici(table); }

  private:
    friend class Comando;

    [[nodiscard]] Database& database(int index) const;
    [[nodiscard]] Database& archive() const { return database(0); }
    [[nodiscard]] std::shared_ptr<const TableInfo> storedTable(int db, int table) const;
    void closeSlots();
    void makeFile(const std::function<void()>& fill, const QString& kept = {});
    void createArchive(const SeManca& missing);
    void rebuild(Apertura& opening);
    [[nodiscard]] qint64 copyTables();

    std::array<std::unique_ptr<Database>, numeroDatabase> databases_;
    std::array<Recordset, numeroSlot> slots_;
    std::unique_ptr<LettoreGuida> guida_;
    std::optional<qint64> found_;
    int lastSlot_ = 0;
};

/// A command on the archive in use that is rolled back unless it was committed.
class Comando : public Transaction {
  public:
    explicit Comando(const Archive& archive);
};

} // namespace vanzer::store
