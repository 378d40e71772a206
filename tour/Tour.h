#pragma once

#include "platform/jet/Database.h"
#include "tests/support/Attendant.h"
#include "tests/support/TestCamera.h"

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

class QWidget;

/// A demo café, an attendant, and the folder for the pictures and printouts of the tour.
///
/// Whatever differs from what was expected is told at once and remembered; the tour goes on.
class Tour
{
public:
    /// `folder` must not exist yet.
    explicit Tour(const QString &folder);
    ~Tour();

    Attendant &attendant() { return m_attendant; }
    QString cafe() const { return path("cafe"); }
    /// Path of a file in the tour's folder.
    QString path(const QString &name) const { return m_folder + '/' + name; }

    void chapter(const QString &title) const;
    /// Saves a window as a numbered PNG.
    void picture(QWidget &window, const QString &name);
    /// The same while no events may run.
    void pictureAsItStands(QWidget &window, const QString &name);
    void expect(const QString &what, const QString &actual, const QString &expected);

    /// First row of a query on the café's data file, with the fields joined by " | ".
    QString row(const QString &sql) const;
    QString value(const QString &sql) const;
    /// Prints the rows that the sales left in the data file.
    void tellStoredSales() const;

    /// Sounds played so far.
    const QStringList &sounds() const { return m_sounds; }
    /// Printed pages so far.
    QStringList printouts() const;

    bool failed() const { return m_failed; }

private:
    void fail(const QString &what);
    void prepareMachine();

    QString m_folder;
    QTemporaryDir m_programFolder;
    Attendant m_attendant;
    TestCamera m_camera;
    DatabaseHandle m_database;
    QStringList m_sounds;
    int m_pictures = 0;
    bool m_failed = false;
};
