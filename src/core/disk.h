// What the disk says of a file: where its name leads, and whether it is safe there.
#pragma once

#include <QString>
#include <QStringList>

class QFile;

namespace vanzer {

/// Where a name leads through links, whether something is there or not: a full path.
[[nodiscard]] QString doveConduce(const QString& path);

/// A name by which a file or folder that is there can be used, given the bytes of its name: the same, unless they, or
/// the folder that they begin in, are no text. Then it leads there while the program, or one that it starts, runs.
[[nodiscard]] QString nomeComeTesto(const QByteArray& name);
/// The same of all arguments of a program that name something, behind "--option=" too.
[[nodiscard]] QStringList argomentiComeTesto(int argc, const char* const* argv);

/// Both paths lead to one file that is there, be it by links or by two names of its own.
[[nodiscard]] bool stessoFile(const QString& path, const QString& other);

/// A plain file on a disk, or one of the program's own resources. Decided without opening it, which could wait without
/// end or have effects.
[[nodiscard]] bool fileNormale(const QString& path);

/// Opens a file for reading that is plain, and still is when it's open; never waits for another program.
[[nodiscard]] bool openReadOnly(QFile& file);

/// Waits until a file, or a folder with the names in it, outlives a loss of power. The result is the system's reason of
/// a failure, empty if there is none; where that can't be asked for, a file counts as safe.
[[nodiscard]] QString alSicuro(const QString& path);
/// The same of a file that is open.
[[nodiscard]] QString alSicuro(int handle);

} // namespace vanzer
