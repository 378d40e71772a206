#pragma once

#include <QString>

#include <string>
#include <vector>

struct sqlite3;

/// A data file through the bare SQLCipher API, with the terminal's own settings for safety: the reference of the
/// figures, and a way to statements that the dialect of the windows does not know.
class BareFile
{
public:
    explicit BareFile(const QString &path);
    ~BareFile();
    BareFile(const BareFile &) = delete;
    BareFile &operator=(const BareFile &) = delete;

    /// All values of all rows, read into strings.
    std::vector<std::string> read(const std::string &sql);
    void write(const std::string &sql);

private:
    sqlite3 *m_file = nullptr;
};
