#pragma once

#include "cafe/Cafe.h"
#include "configuration/Arquivos_INI.h"
#include "tests/support/Files.h"

#include <QDir>
#include <QLocale>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

inline const QLocale brazil(QLocale::Portuguese, QLocale::Brazil);

/// A new café of a test's own: the shared folder with its data file, and the folder of the program with the pointer
/// file. Amounts are written as the region writes them.
///
/// The program-wide values are those of a program that hasn't started, before it and after it.
class TestCafe
{
public:
    explicit TestCafe(const QLocale &region = brazil, const CafeOptions &options = {});
    ~TestCafe();
    TestCafe(const TestCafe &) = delete;
    TestCafe &operator=(const TestCafe &) = delete;

    /// Takes path, language and currency over, as the main window does at its start.
    void start();

    QString folder() const { return m_folder.filePath("cafe"); }
    QString dataFile() const { return path("Morvelane.mdb"); }
    QString programFolder() const { return m_folder.filePath("program"); }
    /// Path of a file in the shared folder; an absolute path stays.
    QString path(const QString &name) const { return QDir(folder()).filePath(name); }

    /// Rows of a query, with "|" between their texts; Null is the empty text.
    QStringList query(const QString &sql);
    /// The first row; empty when there is none.
    QString value(const QString &sql) { return query(sql).value(0); }
    void execute(const QString &sql) { database().Execute(sql); }
    /// Gives a field another name, as another program may, so that terminals miss it.
    void loseField(const QString &table, const QString &field);
    /// Many statements as one, for speed.
    void executeAll(const QStringList &statements);

    /// A key of a shared INI file.
    QString ini(const QString &section, const QString &key, const QString &file = "config.ini") const
    {
        return Ler_INI(path(file), section, key);
    }
    void setIni(const QString &section, const QString &key, const QString &value)
    {
        Gravar_INI(path("config.ini"), section, key, value);
    }

    QByteArray readFile(const QString &name) const { return ::readFile(path(name)); }
    void writeFile(const QString &name, const QByteArray &content) { ::writeFile(path(name), content); }
    /// A text file, written as the program writes one on paper: in Latin-1, with line ends of its first platform.
    QByteArray readGolden(const QString &path) const;

private:
    Database &database();

    QTemporaryDir m_folder;
    DatabaseHandle m_database;
    std::function<QString()> m_savedProgramFolder;
};
