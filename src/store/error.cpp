// SPDX-License-Identifier: MIT
#include "store/error.h"

#include <utility>

#include <QDir>

#include <sqlite3.h>

namespace vanzer::store {

StoreError::StoreError(Kind kind, QString path, QString detail)
    : kind_(kind), path_(std::move(path)), detail_(std::move(detail)), what_(testo().toUtf8()) {}

QString StoreError::testo() const {
    const QString file = QDir::toNativeSeparators(path_);
    switch (kind_) {
    case Kind::NotFound:
        return QStringLiteral("L'archivio %1 non è stato trovato. Nessun file è stato cambiato.").arg(file);
    case Kind::Corrupt:
        return QStringLiteral("Il file %1 è danneggiato o non è un archivio di Vanzer. È rimasto com'era.").arg(file);
    case Kind::Busy:
        return QStringLiteral("L'archivio %1 è già aperto da un altro Vanzer. Non è stato cambiato nulla.").arg(file);
    case Kind::Full:
        return QStringLiteral("Disco pieno: non c'è posto per scrivere %1. Quanto era memorizzato prima è rimasto "
                              "com'era.")
            .arg(file);
    case Kind::ReadOnly:
        return QStringLiteral("L'archivio %1 è in sola lettura: il file o la sua cartella non si può scrivere. Quanto "
                              "era memorizzato prima è rimasto com'era.")
            .arg(file);
    case Kind::Replaced:
        return QStringLiteral("L'archivio %1 è stato cambiato da un altro programma. Non è stato cambiato nulla.")
            .arg(file);
    case Kind::Newer:
        return QStringLiteral("L'archivio %1 è di una versione più recente di Vanzer (formato %2): per aprirlo serve "
                              "quella. È rimasto com'era.")
            .arg(file, detail_);
    case Kind::Unlike:
        return QStringLiteral("L'archivio %1 ha i campi della tabella %2 in un altro ordine: non è di questo Vanzer. "
                              "È rimasto com'era.")
            .arg(file, detail_);
    case Kind::Io:
        return QStringLiteral("Errore di lettura o scrittura di %1 (%2). Quanto era memorizzato prima è rimasto "
                              "com'era.")
            .arg(file, detail_);
    case Kind::Other: break;
    }
    if (file.isEmpty())
        return QStringLiteral("Operazione non riuscita (%1). Quanto era memorizzato prima è rimasto com'era.")
            .arg(detail_);
    return QStringLiteral("Operazione non riuscita sull'archivio %1 (%2). Quanto era memorizzato prima è rimasto "
                          "com'era.")
        .arg(file, detail_);
}

StoreError::Kind kindOfResult(int resultCode) {
    if (resultCode == SQLITE_READONLY_DBMOVED)
        return StoreError::Kind::NotFound;
    switch (resultCode & 0xff) {
    case SQLITE_BUSY: return StoreError::Kind::Busy;
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT: return StoreError::Kind::Corrupt;
    case SQLITE_FULL: return StoreError::Kind::Full;
    case SQLITE_READONLY:
    case SQLITE_PERM: return StoreError::Kind::ReadOnly;
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR: return StoreError::Kind::Io;
    default: return StoreError::Kind::Other;
    }
}

} // namespace vanzer::store
