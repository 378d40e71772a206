#pragma once

#include <QString>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

/// A data file through the bare SQLCipher API, with the terminal's own settings for safety and its own room in memory:
/// the reference of the figures, and a way to statements that the dialect of the windows does not know.
class BareFile
{
public:
    explicit BareFile(const QString &path);
    ~BareFile();
    BareFile(const BareFile &) = delete;
    BareFile &operator=(const BareFile &) = delete;

    /// For the figures' own preparations: all values of all rows, and statements that are run once.
    std::vector<std::string> read(const std::string &sql);
    void write(const std::string &sql);

private:
    friend class BareStatement;

    sqlite3 *m_file = nullptr;
};

/// A statement that was prepared once. It keeps nothing of its rows.
class BareStatement
{
public:
    BareStatement(BareFile &file, const std::string &sql);

    /// Begins anew with these values, which must outlive the run.
    template <typename... Values>
    BareStatement &with(const Values &...values)
    {
        rewind();
        int place = 0;
        (bind(++place, values), ...);
        return *this;
    }
    /// Goes to the next row and looks at each of its columns; false at the end.
    bool next();
    /// Runs to the end.
    void run();
    /// The number in the first column of the first row, 0 where there is none.
    long long number();

    int columns() const;
    /// A column of the current row.
    std::string_view text(int column) const;

private:
    struct Finalize
    {
        void operator()(sqlite3_stmt *statement) const;
    };

    void rewind();
    void bind(int place, std::string_view text);
    void bind(int place, long long number);

    sqlite3 *m_file;
    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
};
