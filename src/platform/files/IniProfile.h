#pragma once

#include <QString>

/// Value of a key: all that follows its "=", untrimmed; cut at `size` - 1 characters without a word. The fallback when
/// there is no such file, section or key.
QString GetPrivateProfileString(const QString &section, const QString &key, const QString &fallback, int size,
                                const QString &file);

/// While one lives, each file is looked for and read only once: for many reads in one go, which over a network cost a
/// moment each.
class IniBurst
{
public:
    IniBurst();
    ~IniBurst();
    Q_DISABLE_COPY_MOVE(IniBurst)
};

/// Sets one key and keeps every other byte of the file; creates file, section and key as needed, with `rightsOf` as for
/// `writeWholeFile`. False when the file could not be replaced.
bool WritePrivateProfileString(const QString &section, const QString &key, const QString &value, const QString &file,
                               const QString &rightsOf = {});
