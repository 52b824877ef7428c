// The folders that scripts begin with.
#pragma once

#include <QDateTime>
#include <QTemporaryDir>

namespace vanzer::hostile {

class Folders {
  public:
    Folders();

    /// A copy of one of them, as fresh as the first time; most are full.
    [[nodiscard]] QString lay(int choice) const;
    static constexpr int choices = 24;
    /// In this one the archive's file is none. It stays as it is, whatever is tried.
    static constexpr int damaged = 3;
    [[nodiscard]] static QByteArray damagedArchive();

    /// The clock of every script.
    [[nodiscard]] static QDateTime moment() { return {QDate(2026, 5, 20), QTime(9, 30)}; }

  private:
    [[nodiscard]] QString path(const QString& name) const { return all_.filePath(name); }
    void makeFull() const;
    void makeOthers() const;
    void addFiles(const QString& folder) const;

    QTemporaryDir all_;
};

} // namespace vanzer::hostile
