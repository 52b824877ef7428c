// SPDX-License-Identifier: MIT
// Facts about files on the disk: where a name leads, what kind of file it is, whether its data are safe.
#pragma once

#include <QString>
#include <QStringList>

class QFile;

namespace vanzer {

/// Follows all links of a path and returns the full path at the end. The file need not exist.
[[nodiscard]] QString doveConduce(const QString& path);

/// A usable name for an existing file or folder, from the bytes of its name. Usually the same name. If the bytes, or
/// those of the current folder, aren't valid text, the result is a link name. It is valid while this program, or one
/// that it starts, runs.
[[nodiscard]] QString nomeComeTesto(const QByteArray& name);
/// Does the same for each argument of a program that names an existing file, also after "--option=".
[[nodiscard]] QStringList argomentiComeTesto(int argc, const char* const* argv);

/// True if both paths lead to the same existing file, through symbolic or hard links.
[[nodiscard]] bool stessoFile(const QString& path, const QString& other);

/// True for a plain file on a disk or a resource of the program. Doesn't open the file: that could block forever or
/// have side effects.
[[nodiscard]] bool fileNormale(const QString& path);

/// Opens a plain file for reading and checks again that it is plain once it is open. Never waits for another program.
/// False on failure.
[[nodiscard]] bool openReadOnly(QFile& file);

/// Waits until a file, or a folder and the names in it, would survive a loss of power. Returns the operating system's
/// reason on failure, else an empty text. Where the platform has no such call, or this user may not read the file, it
/// counts as safe.
[[nodiscard]] QString alSicuro(const QString& path);
/// The same for an open file.
[[nodiscard]] QString alSicuro(int handle);

} // namespace vanzer
