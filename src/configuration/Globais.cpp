#include "configuration/Globais.h"

QString CaminhoBD;
QString NomeIdioma;
QString SimboloMoeda;
const QString FormatoData;
