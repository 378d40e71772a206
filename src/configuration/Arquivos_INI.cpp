#include "configuration/Arquivos_INI.h"

#include "configuration/Arquivos.h"
#include "platform/files/IniProfile.h"

namespace {
constexpr int valueBufferSize = 255; ///< the last place is the terminating zero's
}

QString Ler_INI(const QString &file, const QString &section, const QString &key)
{
    return GetPrivateProfileString(section, key, {}, valueBufferSize, file);
}

void Gravar_INI(const QString &file, const QString &section, const QString &key, const QString &value)
{
    WritePrivateProfileString(section, key, value, file, arquivoModelo(file));
}
