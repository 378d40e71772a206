#include "bench/WorkingCopy.h"

#include "cafe/Cafe.h"
#include "configuration/Arquivos_INI.h"

#include <filesystem>

WorkingCopy::WorkingCopy(const QString &cafe) : m_folder(cafe + "-copy-XXXXXX")
{
    std::filesystem::copy(cafe.toStdString(), folder().toStdString(), std::filesystem::copy_options::recursive);
    Gravar_INI(configFileOf(folder()), "SQL", "servidor", dataFileOf(folder()));
}
