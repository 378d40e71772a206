#pragma once

#include <QString>

#include <cstdint>

/// Answers in the place of a registry; it holds the default printer's name and nothing else.
namespace RegistryStore {
constexpr std::int32_t Success = 0;
constexpr std::int32_t FileNotFound = 2;

/// Opens a key; `key` is set on Success.
std::int32_t RegOpenKeyEx(std::uint32_t root, const QString &subkey, std::uint32_t options, std::uint32_t access,
                          std::uint32_t *key);
/// Reads a text value, with its terminating zero character; `value` is set on Success.
std::int32_t RegQueryValueEx(std::uint32_t key, const QString &name, QString *value);
std::int32_t RegCloseKey(std::uint32_t key);
} // namespace RegistryStore
