#pragma once

#include <QString>

/// A text of the numbered language files, without its delimiters; at most 499 characters are read. `file` is the
/// logical path, the number being put before its last four characters.
QString Ler_Idioma(const QString &file, const QString &section, const QString &key);

/// A text of the language in force, read at the moment of use.
QString textoIdioma(const QString &section, const QString &key);

/// Fills the program-wide texts from the language in force; events run between the reads.
void Carregar_Idioma();

/// A program-wide text as the last `Carregar_Idioma` left it.
QString textoCarregado(const QString &section, const QString &key);
