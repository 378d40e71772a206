#include "platform/jet/FieldValue.h"

#include "platform/base/Err.h"
#include "platform/text/Numbers.h"
#include "platform/text/Utf8.h"

#include <charconv>

namespace {

/// Whole numbers of so many digits read the same in every region.
constexpr std::size_t plainDigits = 15;

double stored(std::string_view digits)
{
    double value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

[[noreturn]] void refuseNull()
{
    throw RunTimeError(ErrorNumber::InvalidUseOfNull, "A field that was never filled has no value.");
}

} // namespace

QString FieldValue::text() const
{
    switch (m_kind) {
    case Kind::Null:
        return {};
    case Kind::Boolean:
        return boolean() ? "True" : "False";
    case Kind::Number:
        if (m_utf8.size() <= plainDigits && m_utf8.find_first_not_of("0123456789") == std::string_view::npos)
            break;
        return Cstr(stored(m_utf8));
    case Kind::Text:
        break;
    }
    return fromUtf8({m_utf8.data(), static_cast<qsizetype>(m_utf8.size())});
}

double FieldValue::number() const
{
    if (m_kind == Kind::Null)
        refuseNull();
    if (m_kind != Kind::Text)
        return stored(m_utf8);
    if (const std::optional<double> value = readNumber(m_utf8))
        return *value;
    throw RunTimeError(ErrorNumber::TypeMismatch, "The text of a field is no number.");
}

bool FieldValue::boolean() const
{
    return number() != 0;
}
