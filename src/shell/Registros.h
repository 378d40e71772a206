#pragma once

#include <QString>

#include <cstdint>

/// Text of a registry value; "Error" when key or value is missing, empty for an unknown root.
QString Ler_Registro(const QString &keyPath, const QString &valueName);

/// Splits the root off a key path: the path shrinks to the subkey, and the root's handle is 0 for an unknown one.
void Separar_Chave_Registro(QString &keyPath, std::uint32_t &root);

/// Handle of a root key by its name; 0 for an unknown one.
std::uint32_t Codigo_Raiz_Registro(const QString &name);

/// What an error code of the registry means. Nothing calls it: at the counter these texts would help nobody.
QString Texto_Erro_Registro(std::int32_t code);
