// SPDX-License-Identifier: MIT
// The archive as the other rooms use it: one file beside the program, its tables, and numbered slots that hold the
// records of a query.
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

/// Name of the archive's file, in the program's directory.
inline constexpr QLatin1String nomeArchivio("Vanzer.mdb");
/// Temporary file for making a new archive or rebuilding one.
inline constexpr QLatin1String nomeRicostruzione("DBTemp.mdb");

/// A whole table, with its records in the order in which they were added. A cell is a text, a yes/no or no value.
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
    /// What to do if there is no archive but there are copies: restore the copy, begin a new archive, or give up.
    enum class SenzaArchivio { Riprende, Comincia, Rinuncia };
    using SeManca = std::function<SenzaArchivio(const CopiaTrovata& copy)>;
    /// What the user should know after an opening.
    struct Apertura {
        QString giornaleEstraneo;  ///< new path of a journal that belonged to another archive; empty if there was none
        QString archivioDiPrima;   ///< path of the file from before a rebuild; empty if there was no rebuild
        qint64 valoriTagliati = 0; ///< values that the rebuild cut because they were too long for their fields
    };

    static constexpr int numeroDatabase = 3;
    static constexpr int numeroSlot = 11;
    static constexpr int slotAppoggio = 7; ///< spare slot for loops that need one beside the slots of the tables

    /// Opens nothing yet. `directory` gets a separator at its end.
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
    /// A slot, from 0. Slots 1 to 6 belong to the tables of the same number.
    [[nodiscard]] Recordset& Rs(int slot) { return slots_.at(static_cast<std::size_t>(slot)); }

    /// Opens "Vanzer.mdb", or makes it if there is none, and opens slots 1 to 6. Rebuilds a file whose tables differ
    /// from the declared ones. A new or rebuilt file is written as "DBTemp.mdb" and renamed when it is complete and
    /// safe on the disk; the file from before a rebuild is kept among the copies. `before` is called with an existing
    /// file, locked, before anything in it is changed. If there is no archive but there are copies, `missing` decides;
    /// it gets the newest copy that has destinations, or else the newest. Throws NotFound if `missing` is empty or
    /// gives up, Unlike if a file to be rebuilt has its fields in another order.
    Apertura openArchive(const PrimaDellUso& before = {}, const SeManca& missing = {});
    void close();

    void DatabaseCrea(int db, bool& created);
    void DatabaseApre(int db);
    /// Creates all six tables, or none if one fails.
    void DatabaseTabelleCreazione(int db);
    void DatabaseTabellaCrea(int db, int table);
    /// Sets `Rettifica` if a table or a declared field is missing, or if a text field has another size. Fields that
    /// aren't declared are ignored. Adds missing indexes.
    void DataBaseTabelleAggiorna(int db);
    void DataBaseVerificaIndici(int db, int table);

    /// Opens the query in `StringaSQL`, or the query passed, in a slot.
    void RecordSetImposta(int db, int slot);
    void RecordSetImposta(int db, int slot, const Query& query);
    /// Number of records that the last RecordSetImposta found. They are counted at the first call, so call it before
    /// that slot is written.
    [[nodiscard]] double NumeroRecord();
    /// Opens the whole tables in slots 1 to 6.
    void RecordSetImpostaDefault();

    /// Position of a field in an open slot; nothing if there is none.
    [[nodiscard]] std::optional<int> CercaCampoTabella(int slot, const QString& name);
    /// For each column name that is a field of the slot: the column's number (from 1) and the field's position (from
    /// 0), two digits each, then "\".
    [[nodiscard]] QString CaricaRiferimentiVettoreCampiTabelleDatabase(int slot, const QStringList& columns);

    /// Deletes the records whose field is LIKE `value`, or all records if `field` is empty. If there is anything to
    /// delete, `progress` is called at the start and at the end.
    void CancellaTabella(int table, const QString& field, const QString& value, const Progress& progress = {});

    /// True if a place of the guide has a part in brackets. The time depends on the number of such places, not on the
    /// size of the guide.
    [[nodiscard]] bool guidaConParentesi();
    /// Reader of the guide in the open archive.
    [[nodiscard]] LettoreGuida& guida();

    /// Sets the mark of use on exactly these entries of the guide. Writes only what changes. The time depends on the
    /// number of marks before and after, not on the size of the guide. Marks are derived data: see writeDerived.
    void putMarksBack(const InsiemeDiRighe& used);

    /// Commands on the open archive, see Database.
    void beginCommand() { archive().beginCommand(); }
    void commitCommand() { archive().commitCommand(); }
    void rollbackCommand() noexcept;
    void storeSoFar() { archive().storeSoFar(); }
    void undoSoFar() noexcept;
    void writeDerived(const std::function<void()>& write) { archive().writeDerived(write); }

    [[nodiscard]] TabellaLetta tabella(const QString& name);
    /// Greatest length of a text field, in characters.
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

/// A command on the open archive, rolled back unless it is committed.
class Comando : public Transaction {
  public:
    explicit Comando(const Archive& archive);
};

} // namespace vanzer::store
