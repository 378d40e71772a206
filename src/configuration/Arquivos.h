#pragma once

#include <QString>

/// Whether a file or a folder is there. Clears the error state on every path, which `Abrir_BD` depends on.
bool Existe_Arquivo(const QString &path);

/// The path up to and including its last separator; a path without one comes back as it is.
QString Pasta_Do_Arquivo(const QString &path);

/// Path of the shared `config.ini`.
QString caminhoConfig();

/// Path of the picture that the camera hands over to the next save.
QString caminhoFototemp();

/// The file whose rights a new file takes: the data file for all that lies in its folder, so that every attendant can
/// write what one of them made; empty elsewhere.
QString arquivoModelo(const QString &path);
