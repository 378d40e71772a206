#pragma once

#include "platform/jet/Database.h"

#include <QHash>
#include <QString>

#include <utility>

/// All that the terminal remembers from one window to the next. Its parts are known everywhere by the names below; a
/// test makes the program forget all of it by a new one.
struct Globais
{
    /// Full path of the shared data file; all other shared paths are formed from its folder, anew at each use.
    QString CaminhoBD;
    /// Language file name with its extension, upper-cased.
    QString NomeIdioma;
    /// Currency symbol in force.
    QString SimboloMoeda;
    /// Texts of the language in force, by section and key.
    QHash<std::pair<QString, QString>, QString> loadedTexts;

    /// The program-wide database, opened by its first user and closed only at the end of the program.
    DatabaseHandle BancoPrincipal;
    /// The three program-wide recordsets, which the end of the program closes. Nothing opens them: queries stay with
    /// those who ask them.
    RecordsetHandle RecordsetGlobal1;
    RecordsetHandle RecordsetGlobal2;
    RecordsetHandle RecordsetGlobal3;
    /// Number of the newest cash period, as last read.
    double IdCaixa = 0;

    /// The page that the shared printer goes back to after a printout, in twips.
    int keptPageWidth = 0;
    int keptPageHeight = 0;
    /// The bars of the label drawn last. A code of an unknown name draws them once more, and that stays.
    QString Padrao_Barras;

    static Globais &current();
};

inline QString &CaminhoBD = Globais::current().CaminhoBD;
inline QString &NomeIdioma = Globais::current().NomeIdioma;
inline QString &SimboloMoeda = Globais::current().SimboloMoeda;
inline DatabaseHandle &BancoPrincipal = Globais::current().BancoPrincipal;
inline RecordsetHandle &RecordsetGlobal1 = Globais::current().RecordsetGlobal1;
inline RecordsetHandle &RecordsetGlobal2 = Globais::current().RecordsetGlobal2;
inline RecordsetHandle &RecordsetGlobal3 = Globais::current().RecordsetGlobal3;
inline double &IdCaixa = Globais::current().IdCaixa;

/// Pattern of the shared dates. Nothing assigns it: such dates come out in the region's short form, and that stays.
inline const QString FormatoData;
