#include "platform/text/Numbers.h"

#include "platform/base/Err.h"
#include "platform/text/RegionalSettings.h"
#include "platform/text/Utf8.h"

#include <QStringDecoder>
#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>

namespace {
/// A place in a text of either encoding. Queries read numbers row by row, so nothing is copied or converted.
template <typename Char>
class Cursor
{
public:
    explicit Cursor(std::basic_string_view<Char> text) : m_text(text) {}

    bool atEnd() const { return m_text.empty(); }

    char16_t peek() const
    {
        if (atEnd())
            return u'\0';
        if constexpr (sizeof(Char) == 1)
            return static_cast<unsigned char>(m_text.front());
        else
            return m_text.front();
    }

    void next() { m_text.remove_prefix(1); }

    bool take(QChar sign)
    {
        const bool here = !atEnd() && peek() == sign.unicode();
        if (here)
            next();
        return here;
    }

    bool take(QStringView sign)
    {
        Cursor ahead = *this;
        for (const QChar c : sign) {
            if (!ahead.take(c))
                return false;
        }
        *this = ahead;
        return !sign.isEmpty();
    }

    bool atDigit() const { return peek() >= u'0' && peek() <= u'9'; }

    char takeDigit()
    {
        const char digit = static_cast<char>(peek());
        next();
        return digit;
    }

    void skipBlanks()
    {
        while (peek() == u' ' || (peek() >= u'\t' && peek() <= u'\r'))
            next();
    }

    /// An exponent such as "E+20" and 0 when none stands here; the cursor moves only past a whole one.
    int takeExponent()
    {
        Cursor ahead = *this;
        if (!ahead.take(u'E') && !ahead.take(u'e'))
            return 0;
        const bool negative = ahead.take(u'-');
        if (!negative)
            ahead.take(u'+');
        if (!ahead.atDigit())
            return 0;
        constexpr int beyondEveryDouble = 10'000;
        int exponent = 0;
        while (ahead.atDigit())
            exponent = std::min(exponent * 10 + (ahead.takeDigit() - '0'), beyondEveryDouble);
        *this = ahead;
        return negative ? -exponent : exponent;
    }

private:
    std::basic_string_view<Char> m_text;
};

/// The digits of a number on their way to a double.
class DigitCollector
{
public:
    void add(char digit)
    {
        m_empty = false;
        m_exponent -= m_inFraction ? 1 : 0;
        if (m_digits < Full)
            m_digits = m_digits * 10 + static_cast<std::uint64_t>(digit - '0');
        else
            ++m_exponent;
    }

    void startFraction() { m_inFraction = true; }
    bool inFraction() const { return m_inFraction; }
    bool isEmpty() const { return m_empty; }

    /// Empty for a number beyond every double.
    std::optional<double> value(int exponent) const
    {
        exponent += m_exponent;
        // A double holds both sides exactly here, so that one division or product rounds as the standard wants it.
        if (m_digits <= ExactDigits && std::abs(exponent) < static_cast<int>(ExactPowers.size())) {
            const double digits = static_cast<double>(m_digits);
            const double power = ExactPowers.at(static_cast<std::size_t>(std::abs(exponent)));
            return exponent < 0 ? digits / power : digits * power;
        }
        const std::string text = std::to_string(m_digits) + 'e' + std::to_string(exponent);
        double number = 0.0;
        const std::errc error = std::from_chars(text.data(), text.data() + text.size(), number).ec;
        if (error == std::errc::result_out_of_range && exponent > 0)
            return {};
        return number;
    }

private:
    /// Eighteen digits and more than a double keeps; those behind them only count as places.
    static constexpr std::uint64_t Full = 100'000'000'000'000'000;
    static constexpr std::uint64_t ExactDigits = std::uint64_t(1) << std::numeric_limits<double>::digits;
    static constexpr std::array ExactPowers{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                            1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

    std::uint64_t m_digits = 0;
    int m_exponent = 0;
    bool m_inFraction = false;
    bool m_empty = true;
};

/// Sign, brackets and currency symbol, each of them once and on either side of the digits.
class Marks
{
public:
    explicit Marks(QStringView currencySymbol) : m_currencySymbol(currencySymbol) {}

    template <typename Char>
    void takeBefore(Cursor<Char> &cursor)
    {
        do
            cursor.skipBlanks();
        while (takeEither(cursor) || takeOpening(cursor));
    }

    template <typename Char>
    void takeAfter(Cursor<Char> &cursor)
    {
        do
            cursor.skipBlanks();
        while (takeEither(cursor) || takeClosing(cursor));
    }

    bool isNegative() const { return m_negative; }
    bool isOpen() const { return m_open; }

private:
    template <typename Char>
    bool takeEither(Cursor<Char> &cursor)
    {
        if (!m_currency && cursor.take(m_currencySymbol))
            return m_currency = true;
        if (m_signed)
            return false;
        m_negative = cursor.take(u'-');
        return m_signed = m_negative || cursor.take(u'+');
    }

    template <typename Char>
    bool takeOpening(Cursor<Char> &cursor)
    {
        if (m_signed || !cursor.take(u'('))
            return false;
        return m_open = m_signed = m_negative = true;
    }

    template <typename Char>
    bool takeClosing(Cursor<Char> &cursor)
    {
        if (!m_open || !cursor.take(u')'))
            return false;
        m_open = false;
        return true;
    }

    QStringView m_currencySymbol;
    bool m_currency = false;
    bool m_signed = false;
    bool m_negative = false;
    bool m_open = false;
};

template <typename Char>
DigitCollector takeDigits(Cursor<Char> &cursor, QChar point, QChar thousands)
{
    DigitCollector digits;
    for (;;) {
        if (cursor.atDigit())
            digits.add(cursor.takeDigit());
        else if (!digits.inFraction() && cursor.take(point))
            digits.startFraction();
        else if (digits.isEmpty() || thousands.isNull() || !cursor.take(thousands))
            return digits;
    }
}

template <typename Char>
double leadingNumber(std::basic_string_view<Char> text)
{
    Cursor<Char> cursor(text);
    cursor.skipBlanks();
    const bool negative = cursor.take(u'-');
    if (!negative)
        cursor.take(u'+');
    const DigitCollector digits = takeDigits(cursor, u'.', QChar());
    if (digits.isEmpty())
        return 0.0;
    const double number = digits.value(cursor.takeExponent()).value_or(0.0);
    return negative ? -number : number;
}

template <typename Char>
std::optional<double> regionalNumber(std::basic_string_view<Char> text)
{
    const RegionalSettings &region = RegionalSettings::current();
    Cursor<Char> cursor(text);
    Marks marks(region.currencySymbol);
    marks.takeBefore(cursor);
    const DigitCollector digits = takeDigits(cursor, region.decimalSeparator, region.thousandsSeparator);
    if (digits.isEmpty())
        return {};
    const std::optional<double> number = digits.value(cursor.takeExponent());
    marks.takeAfter(cursor);
    if (!number || !cursor.atEnd() || marks.isOpen())
        return {};
    return marks.isNegative() ? -*number : *number;
}

std::u16string_view utf16View(QStringView text)
{
    return {text.utf16(), static_cast<std::size_t>(text.size())};
}
} // namespace

double Val(QStringView text)
{
    return leadingNumber(utf16View(text));
}

double Val(std::string_view utf8)
{
    return leadingNumber(utf8);
}

double Cdbl(QStringView text)
{
    if (const std::optional<double> number = readNumber(text))
        return *number;
    throw RunTimeError(ErrorNumber::TypeMismatch, "Type mismatch");
}

std::optional<double> readNumber(QStringView text)
{
    return regionalNumber(utf16View(text));
}

std::optional<double> readNumber(std::string_view utf8)
{
    if (isAscii(utf8))
        return regionalNumber(utf8);
    // Some regions group by a no-break space or have a currency sign beyond ASCII.
    constexpr qsizetype usualLength = 128;
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    QVarLengthArray<QChar, usualLength> utf16(decoder.requiredSpace(static_cast<qsizetype>(utf8.size())));
    const QChar *const end = decoder.appendToBuffer(utf16.data(), QByteArrayView(utf8));
    return readNumber(QStringView(utf16.data(), end));
}

bool IsNumeric(QStringView text)
{
    return readNumber(text).has_value();
}
