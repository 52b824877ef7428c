// SPDX-License-Identifier: MIT
// An archive in its own directory.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "store/archive.h"

namespace vanzer::store {

inline QString path(const QTemporaryDir& directory, const char* file) {
    return directory.filePath(QString::fromLatin1(file));
}

inline QByteArray contents(const QString& file) {
    QFile f(file);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline void write(const QString& file, const QByteArray& bytes) {
    QFile f(file);
    EXPECT_TRUE(f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size());
}

/// Damages the index that leads to the two legs of destination 000001, places P0 and P1.
inline void breakIndexOfLegs(const QString& file) {
    constexpr qsizetype page = 4096;
    QByteArray bytes = contents(file);
    for (qsizetype at = 0; at < bytes.size(); at += page) {
        if (const QByteArray here = bytes.mid(at, page); here.count("000001") == 2 && !here.contains("P1"))
            bytes.replace(at, page, QByteArray(here).replace("000001", "000009"));
    }
    write(file, bytes);
}

/// The kind of an action's failure. No value if it succeeds.
template<typename Action> std::optional<StoreError::Kind> failureOf(Action action) {
    try {
        action();
    } catch (const StoreError& error) {
        return error.kind();
    }
    return std::nullopt;
}

class StoreTest : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(directory.isValid());
        archive.openArchive();
    }

    Recordset& open(const QString& query, int slot = Archive::slotAppoggio) {
        archive.StringaSQL = query;
        archive.RecordSetImposta(0, slot);
        return archive.Rs(slot);
    }

    /// The texts of one field, in the order of the set. "-" for no value.
    QStringList texts(const QString& query, const QString& field) {
        QStringList found;
        for (Recordset& rs = open(query); !rs.EOF_(); rs.MoveNext())
            found += rs.hasValue(field) ? rs.testo(field) : QStringLiteral("-");
        return found;
    }

    /// Adds guide entries by place and description.
    void addGuide(const std::vector<std::pair<QString, QString>>& entries) {
        Comando command(archive);
        Recordset rs(*archive.Db(0), {TabelleNomi(GuidaCitta), {}, {}});
        for (const auto& [place, description] : entries) {
            rs.AddNew();
            if (!place.isNull())
                rs.write("Localita", place);
            rs.write("Descrizione", description);
            rs.Update();
        }
        command.commit();
    }

    /// Adds `count` legs of destination 000001, places P0, P1, ...
    void addLegs(int count) {
        Comando command(archive);
        Recordset rs(*archive.Db(0), {TabelleNomi(Itinerari), {}, {}});
        for (int i = 0; i < count; ++i) {
            rs.AddNew();
            rs.write("CodiceMeta", QStringLiteral("000001"));
            rs.write("Sequenza", QStringLiteral("%1").arg(i % 10000, 4, 10, QChar(u'0')));
            rs.write("Localita", QStringLiteral("P%1").arg(i));
            rs.Update();
        }
        command.commit();
    }

    [[nodiscard]] QString file() const { return path(directory, "Vanzer.mdb"); }

    QTemporaryDir directory;
    Archive archive{directory.path()};
};

} // namespace vanzer::store
