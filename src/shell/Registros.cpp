#include "shell/Registros.h"

#include "platform/files/RegistryStore.h"
#include "platform/window/Prompts.h"

namespace {
constexpr std::uint32_t KEY_READ = 131097;
const QString failed = "Error";
} // namespace

QString Ler_Registro(const QString &keyPath, const QString &valueName)
{
    QString subkey = keyPath;
    std::uint32_t root = 0;
    Separar_Chave_Registro(subkey, root);
    if (root == 0)
        return {};

    std::uint32_t key = 0;
    if (RegistryStore::RegOpenKeyEx(root, subkey, 0, KEY_READ, &key) != 0)
        return failed;

    QString value;
    // The key stays open after a failed read, as it always has; the store holds nothing for it.
    if (RegistryStore::RegQueryValueEx(key, valueName, &value) != 0)
        return failed;

    RegistryStore::RegCloseKey(key);
    value.chop(1);
    return value.trimmed();
}

void Separar_Chave_Registro(QString &keyPath, std::uint32_t &root)
{
    root = 0;
    if (!keyPath.startsWith("HKEY_") || keyPath.endsWith('\\')) {
        MsgBox("Incorrect Format:\n\n" + keyPath);
        return;
    }
    const qsizetype separator = keyPath.indexOf('\\');
    root = Codigo_Raiz_Registro(separator < 0 ? keyPath : keyPath.left(separator));
    keyPath = separator < 0 ? QString() : keyPath.mid(separator + 1);
}

std::uint32_t Codigo_Raiz_Registro(const QString &name)
{
    static constexpr const char *roots[] = {
        "HKEY_CLASSES_ROOT",     "HKEY_CURRENT_USER",   "HKEY_LOCAL_MACHINE", "HKEY_USERS",
        "HKEY_PERFORMANCE_DATA", "HKEY_CURRENT_CONFIG", "HKEY_DYN_DATA",
    };
    std::uint32_t handle = 0x80000000;
    for (const char *root : roots) {
        if (name == root)
            return handle;
        ++handle;
    }
    return 0;
}

QString Texto_Erro_Registro(std::int32_t code)
{
    switch (code) {
    case 2:
    case 1010:
        return "Bad Key Name";
    case 4:
    case 1012:
        return "Can't Read Key";
    case 5:
        return "Access to this key is denied";
    case 8:
    case 14:
        return "Out of memory";
    case 87:
        return "Invalid Parameter";
    case 234:
        return "There is more data than the buffer has been allocated to hold.";
    case 1009:
    case 1015:
        return "The Registry Database is corrupt!";
    case 1011:
        return "Can't Open Key";
    case 1013:
        return "Can't Write Key";
    default:
        return "Undefined Error Code:  " + QString::number(code);
    }
}
