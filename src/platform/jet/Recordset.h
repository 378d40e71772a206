#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

/// One value of a row: Null, a number, a boolean or a text.
class FieldValue
{
public:
    enum class Kind : std::uint8_t { Null, Number, Boolean, Text };

    FieldValue() = default;
    FieldValue(Kind kind, std::string_view utf8) : m_kind(kind), m_utf8(utf8) {}

    bool isNull() const { return m_kind == Kind::Null; }
    /// The value joined with an empty text: Null gives the empty text, a number its plain text.
    QString text() const;
    /// Raises InvalidUseOfNull for Null and TypeMismatch for a text that is no number by the regional settings.
    double number() const;
    /// Raises InvalidUseOfNull for Null; any number but 0 is true.
    bool boolean() const;
    std::string_view utf8() const { return m_utf8; }

private:
    Kind m_kind = Kind::Null;
    std::string_view m_utf8;
};

/// The answer of a query, read forward only.
///
/// The whole answer is read when it is opened, so that a list that stays open keeps no other terminal waiting.
/// Values stay valid as long as the recordset.
class Recordset
{
public:
    /// Not `EOF`: that word is a macro of the C library.
    bool Eof() const;
    /// Raises when there is no current row.
    void MoveNext();
    /// A field of the current row, by its name without regard to case. Raises for an unknown name or at the end.
    FieldValue Fields(const QString &name) const;
    /// A field of the current row by its position from 0.
    FieldValue Fields(int index) const;
    int FieldCount() const;
    QString FieldName(int index) const;
    void Close();
};
