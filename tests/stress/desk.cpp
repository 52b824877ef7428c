// SPDX-License-Identifier: MIT
#include "stress/desk.h"

#include <filesystem>
#include <fstream>
#include <map>
#include <optional>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include "store/archive.h"
#include "stress/attempts.h"

namespace vanzer::stress {

namespace {

namespace fs = std::filesystem;

using Sections = std::map<QString, QStringList>;

Sections sectionsOf(const char* file) {
    Sections found;
    QFile lines(QStringLiteral(VANZER_PROJECT "/tests/stress/") + QString::fromLatin1(file));
    EXPECT_TRUE(lines.open(QIODevice::ReadOnly)) << file;
    QString name;
    for (const QString& line : QString::fromUtf8(lines.readAll()).split(u'\n')) {
        if (line.startsWith(u"== "_s))
            name = line.sliced(3);
        else if (line.startsWith(u"  "_s))
            found[name].last() += line.sliced(1);
        else if (!line.isEmpty() && !line.startsWith(u"//"_s))
            found[name] += line;
    }
    return found;
}

/// The legs of "NAME N" or "NAME N*". With "*" the editor stays open.
QStringList legs(const QString& words) {
    static const QStringList scripts = section("scripts.txt", u"scripts"_s);
    const QString name = words.section(u' ', 0, -2);
    const QString count = words.section(u' ', -1);
    const int most = count.section(u'*', 0, 0).toInt() + (count.endsWith(u'*') ? int(options().seed % 32) : 0);
    QStringList lines = script(entry(scripts, u"trip"_s).replace(u"NAME"_s, name));
    for (int leg = 0; leg < most; ++leg)
        lines += script(entry(scripts, u"leg"_s).replace(u"NAME"_s, name + u' ' + QString::number(leg)));
    return lines;
}

fs::path placeOf(const QString& folder, const QString& name) {
    const bool ours = name.startsWith(u"samples/"_s) || name.startsWith(u"tests/"_s);
    return fs::path(ours ? std::string(VANZER_PROJECT) : folder.toStdString()) / name.toStdString();
}

void makeReady(const QString& folder, const QString& word, const QStringList& names) {
    const fs::path place = placeOf(folder, names.first());
    if (word == u"copy") {
        const fs::path target = placeOf(folder, names[1]);
        fs::create_directories(target.parent_path());
        fs::copy(place, target, fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    } else if (word == u"remove")
        EXPECT_GT(fs::remove_all(place), 0U);
    else if (word == u"cut")
        fs::resize_file(place, names[1].toULong());
    else if (word == u"put") {
        fs::create_directories(place.parent_path());
        std::ofstream(place) << names.value(1).toStdString();
    } else
        store::Database::open(folder + u'/' + store::nomeArchivio)->changeSchema(names.join(u" > ").toUtf8());
}

} // namespace

QStringList section(const char* file, const QString& name) {
    static std::map<std::string, Sections> read;
    if (!read.contains(file))
        read[file] = sectionsOf(file);
    return read[file][name];
}

QString entry(const QStringList& section, const QString& key) {
    const QStringList found = section.filter(QRegularExpression(u'^' + QRegularExpression::escape(key) + u": "_s));
    return found.value(0).sliced(found.isEmpty() ? 0 : key.size() + 2);
}

QStringList script(const QString& text, const QString& folder) {
    QStringList lines;
    for (const QString& line : text.split(u"; "_s, Qt::SkipEmptyParts)) {
        const QString rest = line.section(u' ', 1);
        if (line.startsWith(u'+'))
            lines += script(entry(section("scripts.txt", u"scripts"_s), line.sliced(1)), folder);
        else if (line.startsWith(u"legs "_s))
            lines += legs(rest);
        else if (line.startsWith(u"trip "_s))
            lines += legs(rest) + script(u"+end editing"_s);
        else
            lines += line;
    }
    return lines.replaceInStrings(u"{}"_s, folder);
}

void prepare(const QString& folder, const QStringList& lines) {
    QDir().mkpath(folder);
    std::optional<Desk> desk;
    for (const QString& line : lines) {
        const QString word = line.section(u' ', 0, 0);
        const QStringList names = line.section(u' ', 1).split(u" > "_s);
        if (u"copy remove cut put sql"_s.split(u' ').contains(word)) {
            desk.reset();
            makeReady(folder, word, names);
            continue;
        }
        if (!desk)
            desk.emplace(folder);
        desk->run({line});
    }
}

std::string text(const QStringList& lines) {
    return lines.join(u'\n').toStdString();
}

std::string unclearWords(QStringList boxes) {
    for (const QString& words : section("scripts.txt", u"clear words"_s))
        boxes.removeIf([&words](const QString& box) { return box.contains(batch::unescaped(words)); });
    return text(boxes);
}

QStringList Desk::records() {
    QStringList all;
    for (int table = store::primaTabella; table <= store::ultimaTabella; ++table) {
        const auto answer = program().run(u"table "_s + store::TabelleNomi(table));
        for (const QJsonValue& record : answer->value(u"records"_s).toArray()) {
            QStringList fields{store::TabelleNomi(table)};
            for (const QJsonValue& field : record.toArray())
                fields += field.toVariant().toString();
            if (table == store::GuidaCitta)
                fields.removeAt(6);
            all += fields.join(u'|');
        }
    }
    return all;
}

} // namespace vanzer::stress
