#pragma once

#include "drill/Ledger.h"

#include <QDir>
#include <QList>
#include <QString>

#include <random>

/// What a drill plays, and what came of it.
struct Drill
{
    struct Row
    {
        QString scene;
        QString work;
        Figures figures;
    };

    int kills = 200;
    int seconds = 120;
    int webcams = 200;
    unsigned seed = 0;
    /// What the titles of the scenes hold that are played; an empty text is in all of them.
    QString only;
    /// Folder of another version of the engine's library; every second of the four terminals works with it.
    QString otherEngine;
    /// Where cafés and pointer files are laid out.
    QDir folder;
    std::mt19937 chance;

    QList<Row> rows;
    /// Sentences about what was seen on the way.
    QStringList notes;
    /// What should never be.
    QStringList damage;
    QStringList notTried;

    int below(int limit) { return static_cast<int>(chance() % static_cast<unsigned>(limit)); }
    /// A serial number from which a terminal counts on; no two terminals meet.
    int nextSerials();
    void addRows(const QString &scene, const QMap<QString, Figures> &figures);
    /// Runs the checks of the café tool; what they find is damage.
    void check(const QString &cafe, const QString &when);

private:
    int m_serials = 0;
};

/// Lays out a small demo café, whose till is open, with the products that are sold; gives its folder.
QString layOutCafe(const Drill &drill, const QString &name);

/// Terminals are killed at random moments of their work, the file is checked and the next one starts.
void playKills(Drill &drill);
/// Four terminals sell, register and edit on one folder.
void playCrowd(Drill &drill);
