#pragma once

#include <QString>

// Program-wide values, set by the main window and read everywhere.

/// Full path of the shared data file; all other shared paths are formed from its folder, anew at each use.
extern QString CaminhoBD;
/// Language file name with its extension, upper-cased.
extern QString NomeIdioma;
/// Currency symbol in force.
extern QString SimboloMoeda;
/// Pattern of the shared dates. Nothing assigns it: such dates come out in the region's short form, and that stays.
extern const QString FormatoData;
