#include "hostile/folders.h"

#include <QDir>
#include <QFile>

#include "support/desk.h"

namespace vanzer::hostile {

namespace {

const QString fullFolder = u"pieno"_s;   ///< trips, guide, files to read
const QString emptyFolder = u"nuovo"_s;  ///< no archive, the same files
const QString oldFolder = u"vecchio"_s;  ///< the files of the earlier generation too
const QString otherFolder = u"altro"_s;  ///< an archive with other tables, which is rebuilt
const QString brokenFolder = u"rotto"_s; ///< a file that is no archive
const QString workFolder = u"lavoro"_s;

void put(const QString& path, const QByteArray& contents) {
    QFile file(path);
    static_cast<void>(file.open(QIODevice::WriteOnly));
    file.write(contents);
}

QByteArray contentsOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

Folders::Folders() {
    makeFull();
    makeOthers();
}

void Folders::makeFull() const {
    QDir().mkpath(path(fullFolder));
    {
        batch::Interpreter program({.directory = path(fullFolder), .decimalMark = u'.', .versione = {}});
        program.setClock(moment());
        for (const QByteArray& line : contentsOf(QStringLiteral(VANZER_SAMPLES "/capo_nord.txt")).split('\n'))
            static_cast<void>(program.run(QString::fromUtf8(line)));
    }
    QStringList lines{u"start"_s};
    lines += storedTrip(u"ROMA"_s, 6);
    lines += storedTrip(u"CASA"_s, 3);
    lines += {u"click cmdGuidaCitta"_s,
              u"row mfgTab 1"_s,
              u"set txtGDescr Il porto"_s,
              u"set txtGGruppo A"_s,
              u"set cmbGH 01"_s,
              u"set cmbGM 30"_s,
              u"click cmdSalvaRiga"_s,
              u"click cmdFineInserimento"_s,
              u"click cmdExport"_s,
              u"click cmdImportExport(0)"_s,
              u"click cmdTutto(0)"_s,
              u"file giri.iei"_s,
              u"answer 6"_s,
              u"click cmdImExp(0)"_s};
    Desk(path(fullFolder), moment().date()).run(lines);
    addFiles(path(fullFolder));
}

void Folders::makeOthers() const {
    for (const QString& name : {emptyFolder, oldFolder, brokenFolder}) {
        copyFolder(path(fullFolder), path(name));
        QFile::remove(path(name) + u"/Vanzer.mdb"_s);
        QDir(path(name) + u"/Copie"_s).removeRecursively();
    }
    copyFolder(QStringLiteral(VANZER_SAMPLES "/vecchi"), path(oldFolder));
    put(path(brokenFolder) + u"/Vanzer.mdb"_s, damagedArchive());
    copyFolder(path(fullFolder), path(otherFolder));
    changeSchema(path(otherFolder), "DROP TABLE Parametri");
    changeSchema(path(otherFolder), "ALTER TABLE Itinerari DROP COLUMN SostaGuidaCitta");
}

void Folders::addFiles(const QString& folder) const {
    QDir().mkpath(folder + u"/cartella"_s);
    copyFolder(QStringLiteral(VANZER_SAMPLES "/percorsi"), folder);
    for (const QString& reader : {u"iei"_s, u"mete"_s, u"pacchetto"_s})
        copyFolder(QStringLiteral(VANZER_CORPUS "/") + reader, folder);
    put(folder + u"/tronco.iei"_s, contentsOf(folder + u"/giri.iei"_s).first(1500));
    put(folder + u"/doppio.iei"_s,
        contentsOf(folder + u"/whole.iei"_s).replace("000001", "000071").replace("000002", "000071"));
    put(folder + u"/vuoto.txt"_s, {});
    put(folder + u"/rotto.bin"_s, damagedArchive());
}

QByteArray Folders::damagedArchive() {
    return QByteArray::fromHex("00ff0dfe0afd20fffefd00ff").repeated(50);
}

QString Folders::lay(int choice) const {
    const QString* const chosen[] = {&emptyFolder, &oldFolder, &otherFolder, &brokenFolder, &emptyFolder, &oldFolder};
    const auto number = static_cast<std::size_t>(choice);
    QDir(path(workFolder)).removeRecursively();
    copyFolder(path(number < std::size(chosen) ? *chosen[number] : fullFolder), path(workFolder));
    return path(workFolder);
}

} // namespace vanzer::hostile
