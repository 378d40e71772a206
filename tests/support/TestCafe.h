#pragma once

#include "cafe/Cafe.h"

#include <QByteArray>
#include <QLocale>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>

/// A café of a test's own: the shared folder with its data file, and the folder of the program with the pointer file.
///
/// The program-wide values are those of a program that hasn't started, before it and after it. Without options the café
/// is a new one; its amounts are written as the region writes them.
class TestCafe
{
public:
    explicit TestCafe(const QLocale &region = QLocale(QLocale::Portuguese, QLocale::Brazil),
                      const CafeOptions &options = {});
    ~TestCafe();
    TestCafe(const TestCafe &) = delete;
    TestCafe &operator=(const TestCafe &) = delete;

    /// Takes path, language and currency over, as the main window does at its start.
    void start();

    QString folder() const;
    QString dataFile() const { return path("Morvelane.mdb"); }
    QString programFolder() const;
    /// Path of a file in the shared folder.
    QString path(const QString &name) const { return folder() + '/' + name; }

    /// Rows of a query as texts; Null is the empty text.
    QList<QStringList> query(const QString &sql);
    /// The first field of the first row; empty when there is none.
    QString value(const QString &sql);
    void execute(const QString &sql);
    /// Many statements as one, for speed.
    void executeAll(const QStringList &statements);

    /// A key of the shared `config.ini`.
    QString ini(const QString &section, const QString &key) const;
    void setIni(const QString &section, const QString &key, const QString &value);

    QByteArray readFile(const QString &name) const;
    void writeFile(const QString &name, const QByteArray &content);

private:
    Database &database();

    QTemporaryDir m_folder;
    DatabaseHandle m_database;
    std::function<QString()> m_savedProgramFolder;
};
