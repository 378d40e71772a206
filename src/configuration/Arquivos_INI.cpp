#include "configuration/Arquivos_INI.h"

#include "configuration/Arquivos.h"
#include "platform/base/Err.h"
#include "platform/files/IniProfile.h"

namespace {
constexpr int valueBufferSize = 255; ///< the last place is the terminating zero's
}

QString Ler_INI(const QString &file, const QString &section, const QString &key)
{
    QString value;
    OnErrorResumeNext([&] { value = GetPrivateProfileString(section, key, {}, valueBufferSize, file); });
    return value;
}

void Gravar_INI(const QString &file, const QString &section, const QString &key, const QString &value)
{
    OnErrorResumeNext([&] { WritePrivateProfileString(section, key, value, file, arquivoModelo(file)); });
}
