#pragma once

#include <QString>

#include <cstdint>
#include <string_view>

/// One value of a row: Null, a number, a boolean or a text.
class FieldValue
{
public:
    enum class Kind : std::uint8_t
    {
        Null,
        Number,
        Boolean,
        Text
    };

    FieldValue() = default;
    FieldValue(Kind kind, std::string_view utf8) : m_kind(kind), m_utf8(utf8) {}

    Kind kind() const { return m_kind; }
    bool isNull() const { return m_kind == Kind::Null; }
    /// The value joined with an empty text: Null gives the empty text, a number its plain text.
    QString text() const;
    /// Raises InvalidUseOfNull for Null and TypeMismatch for a text that is no number by the regional settings.
    double number() const;
    /// Raises InvalidUseOfNull for Null; any number but 0 is true.
    bool boolean() const;
    /// The text; a number and a boolean in digits, with a point whatever the region.
    std::string_view utf8() const { return m_utf8; }

private:
    Kind m_kind = Kind::Null;
    std::string_view m_utf8;
};
