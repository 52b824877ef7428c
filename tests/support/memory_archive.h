// SPDX-License-Identifier: MIT
// An archive in memory, with only what an import needs. It isn't fast.
#pragma once

#include <array>
#include <vector>

#include "core/collation.h"
#include "core/text.h"
#include "exchange/iei_import.h"
#include "store/schema.h"

namespace vanzer {

class MemoryArchive final : public ArchivioImport {
  public:
    using Record = std::vector<QString>;

    std::array<std::vector<Record>, ultimaSezione + 1> tables; ///< by section
    std::array<std::size_t, ultimaSezione + 1> added{};        ///< records that the import added

    [[nodiscard]] static const std::vector<store::FieldDef>& fields(int section) {
        static const std::array<std::vector<store::FieldDef>, ultimaSezione + 1> all{
            std::vector<store::FieldDef>(), store::campiDescritti(store::TabelleCampi(store::MeteVanzer)),
            store::campiDescritti(store::TabelleCampi(store::Itinerari)),
            store::campiDescritti(store::TabelleCampi(store::GuidaCitta))};
        return all[static_cast<std::size_t>(section)];
    }
    [[nodiscard]] static CampiIei names() {
        CampiIei names;
        for (int section = primaSezione; section <= ultimaSezione; ++section) {
            for (const store::FieldDef& field : fields(section))
                names[static_cast<std::size_t>(section)] += field.name;
        }
        return names;
    }
    [[nodiscard]] std::vector<Record>& table(int section) { return tables[static_cast<std::size_t>(section)]; }

    /// Adds a record with these texts. All other fields are blank.
    void put(int section, const std::vector<std::pair<QString, QString>>& texts) {
        Record record(fields(section).size(), QStringLiteral(" "));
        for (const auto& [name, text] : texts)
            record[position(section, name)] = text;
        table(section).push_back(std::move(record));
    }
    [[nodiscard]] static const QString& text(int section, const Record& record, QStringView field) {
        return record[position(section, field)];
    }
    [[nodiscard]] QStringList column(int section, QStringView field) const {
        QStringList texts;
        for (const Record& record : tables[static_cast<std::size_t>(section)])
            texts += text(section, record, field);
        return texts;
    }

    void add(int section, std::vector<QString>& values) override {
        for (std::size_t i = 0; i < values.size(); ++i) {
            const store::FieldDef& field = fields(section)[i];
            if (field.kind == store::FieldKind::Text)
                values[i] = values[i].left(field.size);
        }
        table(section).push_back(values);
        ++added[static_cast<std::size_t>(section)];
    }
    std::vector<QString> nomiMete() override { return texts(store::MeteVanzer); }
    std::vector<QString> luoghiTappe() override { return texts(store::Itinerari); }
    std::vector<Voce> vociGuida() override {
        std::vector<Voce> entries;
        for (const Record& record : table(store::GuidaCitta))
            entries.push_back(
                {text(store::GuidaCitta, record, u"Localita"), text(store::GuidaCitta, record, u"Descrizione")});
        return entries;
    }

    [[nodiscard]] static bool like(const QString& pattern, const QString& text) {
        return resembles(pattern.toStdString(), text.toStdString());
    }

  private:
    [[nodiscard]] std::vector<QString> texts(int section) const {
        const QStringList places = column(section, u"Localita");
        return {places.begin(), places.end()};
    }
    [[nodiscard]] static std::size_t position(int section, QStringView field) {
        std::size_t i = 0;
        while (!uguale(fields(section).at(i).name, field))
            ++i;
        return i;
    }
};

} // namespace vanzer
