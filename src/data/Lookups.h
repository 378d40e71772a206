#pragma once

#include <QString>

/// Category of a product; "-----" when there is none. Rewrites `CaminhoBD` at each call.
QString Categoria_Do_Produto(const QString &description);
QString Grupo_Do_Cliente(const QString &name);
bool Tem_Link(const QString &name);
