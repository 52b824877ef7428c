// Files that the program writes for others, where they can't be written: the user is told which and why, the older ones
// stay, and the command can be given again.
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

#include "faults/failing_sync.h"
#include "store/safe_files.h"
#include "support/desk.h"
#include "support/full_disk.h"

namespace vanzer::faults {
namespace {

/// Nobody may write into these folders while it lives; the administrator works as somebody else meanwhile.
class NoRight {
  public:
    explicit NoRight(QStringList folders) : folders_(std::move(folders)) {
        setRights(0555);
        if (administrator_) {
            EXPECT_EQ(setresuid(nobody, nobody, 0), 0);
        }
    }
    ~NoRight() {
        if (administrator_) {
            EXPECT_EQ(setresuid(0, 0, 0), 0);
        }
        setRights(0755);
    }
    NoRight(const NoRight&) = delete;
    NoRight& operator=(const NoRight&) = delete;

  private:
    static constexpr uid_t nobody = 65534;

    void setRights(mode_t rights) {
        for (const QString& folder : folders_)
            EXPECT_EQ(chmod(folder.toLocal8Bit().constData(), rights), 0);
    }

    QStringList folders_;
    bool administrator_ = geteuid() == 0;
};

/// A folder that isn't there while it lives.
class Gone {
  public:
    explicit Gone(QString folder) : folder_(std::move(folder)) { EXPECT_TRUE(QDir().rename(folder_, aside())); }
    ~Gone() { EXPECT_TRUE(QDir().rename(aside(), folder_)); }
    Gone(const Gone&) = delete;
    Gone& operator=(const Gone&) = delete;

  private:
    [[nodiscard]] QString aside() const { return folder_ + u".altrove"_s; }

    QString folder_;
};

struct Output {
    const char* name;
    QStringList lines;
    QStringList files; ///< relative to the archive's folder
};

std::string contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "none";
}

class FilesUnderFaults : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_EQ(chmod(home.path().toLocal8Bit().constData(), 0755), 0);
        QDir().mkpath(folder + u"/uscita"_s);
        desk.run(QStringList{u"start"_s} + storedTrip(u"GARDA"_s, 12));
    }

    template<typename Trouble> void check(const Output& output, const QString& reason, const Trouble& trouble) {
        SCOPED_TRACE(output.name);
        const std::string old = "quello di prima";
        for (const QString& name : output.files) {
            QFile file(folder + u'/' + name);
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(old.c_str());
        }
        const std::string filesBefore = filesIn(folder + u"/uscita"_s);
        QString told;
        {
            const auto lasting = trouble();
            told = desk.run(output.lines).join(u'\n');
        }
        EXPECT_TRUE(told.contains(reason)) << told.toStdString();
        for (const QString& name : output.files) {
            EXPECT_TRUE(told.contains(name)) << told.toStdString();
            EXPECT_EQ(contents(folder + u'/' + name), old) << name.toStdString();
        }
        EXPECT_TRUE(desk.alive());
        told = desk.run(output.lines).join(u'\n');
        EXPECT_FALSE(told.contains(u"non può essere scritto") || told.contains(u"non è completa"))
            << told.toStdString();
        for (const QString& name : output.files)
            EXPECT_NE(contents(folder + u'/' + name), old) << name.toStdString();
        EXPECT_EQ(filesIn(folder + u"/uscita"_s), filesBefore);
    }

    QTemporaryDir home;
    const QString folder = home.filePath(u"viaggi"_s);
    Desk desk{folder};
};

TEST_F(FilesUnderFaults, AreTold) {
    const Output outputs[] = {
        {"export",
         {u"click cmdExport"_s, u"click cmdImportExport(0)"_s, u"click cmdTutto(0)"_s, u"file uscita/giro.iei"_s,
          u"answer 6 6"_s, u"click cmdImExp(0)"_s},
         {u"uscita/giro.iei"_s}},
        {"print",
         {u"click cmdCalcola"_s, u"click cmdStampa"_s, u"check chkTabella 1"_s, u"click cmdEsegui(0)"_s,
          u"pick lstStampanti PDF"_s, u"file "_s + folder + u"/uscita/giro.pdf"_s, u"click cmdSelStampante(0)"_s,
          u"click cmdCalcola"_s},
         {u"Vanztabl.txt"_s, u"ListaLocalita.txt"_s, u"uscita/giro.pdf"_s}},
    };
    for (const Output& output : outputs) {
        check(output, u"disco è pieno"_s, [] { return std::make_unique<FullDisk>(100); });
        check(output, u"non è permesso"_s, [this] {
            return std::make_unique<NoRight>(QStringList{folder, folder + u"/uscita"_s});
        });
        check(output, u"la sua cartella non c'è"_s, [this] { return std::make_unique<Gone>(folder); });
        check(output, u"il disco non conferma la scrittura"_s,
              [] { return std::make_unique<FailingSync>(FailingSync::Of::Files); });
        const FailingSync unsafe(FailingSync::Of::Folders);
        const QString told = desk.run(output.lines).join(u'\n');
        for (const QString& name : output.files)
            EXPECT_TRUE(told.contains(name)) << told.toStdString();
        EXPECT_TRUE(told.contains(u"il disco non conferma la scrittura"_s)) << told.toStdString();
    }
}

TEST(FilesInPlace, AreToldWhereTheyArentSafe) {
    const QTemporaryDir home;
    const QString made = home.filePath(u"nuovo.mdb"_s);
    const QString place = home.filePath(u"Vanzer.mdb"_s);
    const auto write = [](const QString& path, const char* bytes) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) > 0);
    };
    for (const auto which : {FailingSync::Of::Files, FailingSync::Of::Folders}) {
        write(made, "nuovo");
        write(place, "quello di prima");
        const FailingSync unsafe(which);
        EXPECT_THROW(store::metteAlPosto(made, place), store::StoreError);
        EXPECT_EQ(contents(place), which == FailingSync::Of::Files ? "quello di prima" : "nuovo");
    }
}

} // namespace
} // namespace vanzer::faults
