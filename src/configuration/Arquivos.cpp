#include "configuration/Arquivos.h"

#include "configuration/Globais.h"
#include "platform/base/Err.h"
#include "platform/files/Paths.h"

#include <algorithm>

bool Existe_Arquivo(const QString &path)
{
    const bool exists = OnErrorGoToEnd<ErrorNumber::FileNotFound>([&] { GetAttr(path); });
    Err::Clear();
    return exists;
}

QString Pasta_Do_Arquivo(const QString &path)
{
    const qsizetype separator = std::max(path.lastIndexOf('\\'), path.lastIndexOf('/'));
    return separator < 0 ? path : path.left(separator + 1);
}

QString caminhoConfig()
{
    return Pasta_Do_Arquivo(CaminhoBD) + "\\config.ini";
}

QString caminhoFototemp()
{
    return Pasta_Do_Arquivo(CaminhoBD) + "\\Fototemp.jpg";
}

QString arquivoModelo(const QString &path)
{
    return path.startsWith(Pasta_Do_Arquivo(CaminhoBD)) ? CaminhoBD : QString();
}
