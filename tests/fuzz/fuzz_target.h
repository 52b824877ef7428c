// Readers under fire: each takes any bytes and must neither crash nor hang nor break its promises.
#pragma once

#include <QByteArray>
#include <QString>

namespace vanzer::fuzz {

/// Imports every destination of an exchange file into an archive with some of the like, and writes what came in again.
void readExchangeFile(const QByteArray& input);
/// Reads a route list, and again with other line ends.
void readRoutePackage(const QByteArray& input);
/// Reads a stop file and folds a route down to its stops, some of whose names are the route's.
void readStopFile(const QByteArray& input);
/// Reads the bytes as each kind of old file.
void readOldFile(const QByteArray& input);
/// Opens an archive as the program does, walks it by every index, and stores a record.
void openArchive(const QByteArray& input);
/// Reads the command file of the logbook's program, and the trip alone.
void readCommandFile(const QByteArray& input);
/// Reads a draft, and what it says once more.
void readDraft(const QByteArray& input);
/// Starts the window on a file of settings, and stores them again.
void readSettings(const QByteArray& input);

/// Ends the program with what was promised, if it isn't so.
void promise(bool kept, const char* what);

} // namespace vanzer::fuzz
