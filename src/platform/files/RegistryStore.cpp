#include "platform/files/RegistryStore.h"

#include "platform/base/Machine.h"

namespace {
constexpr std::uint32_t currentConfig = 0x80000005;
/// Any handle serves, as there is one key only.
constexpr std::uint32_t printersKey = 1;
} // namespace

std::int32_t RegistryStore::RegOpenKeyEx(std::uint32_t root, const QString &subkey, std::uint32_t, std::uint32_t,
                                         std::uint32_t *key)
{
    constexpr const char *printers = "System\\CurrentControlSet\\Control\\Print\\Printers";
    if (root != currentConfig || subkey.compare(printers, Qt::CaseInsensitive) != 0)
        return FileNotFound;
    *key = printersKey;
    return Success;
}

std::int32_t RegistryStore::RegQueryValueEx(std::uint32_t key, const QString &name, QString *value)
{
    const QString printer = Machine::current().defaultPrinterName();
    if (key != printersKey || name.compare("Default", Qt::CaseInsensitive) != 0 || printer.isEmpty())
        return FileNotFound;
    *value = printer + QChar(u'\0');
    return Success;
}

std::int32_t RegistryStore::RegCloseKey(std::uint32_t)
{
    return Success;
}
