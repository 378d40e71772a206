#include "platform/text/Numbers.h"

#include "platform/base/Err.h"
#include "platform/text/RegionalSettings.h"

#include <QStringDecoder>
#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <charconv>

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
        constexpr int BeyondEveryDouble = 10'000;
        int exponent = 0;
        while (ahead.atDigit())
            exponent = std::min(exponent * 10 + (ahead.takeDigit() - '0'), BeyondEveryDouble);
        *this = ahead;
        return negative ? -exponent : exponent;
    }

private:
    std::basic_string_view<Char> m_text;
};

/// The digits of a number on their way to the nearest double.
class DigitCollector
{
public:
    void add(char digit)
    {
        m_empty = false;
        m_exponent -= m_inFraction ? 1 : 0;
        if (m_size == 0 && digit == '0')
            return;
        if (m_size < Kept)
            m_digits[m_size++] = digit;
        else
            ++m_exponent;
    }

    void startFraction() { m_inFraction = true; }
    bool inFraction() const { return m_inFraction; }
    bool isEmpty() const { return m_empty; }

    /// Empty for a number beyond every double.
    std::optional<double> value(int exponent)
    {
        if (m_size == 0)
            return 0.0;
        exponent += m_exponent;
        char *const end = m_digits.data() + m_digits.size();
        m_digits[m_size] = 'e';
        const char *const last = std::to_chars(m_digits.data() + m_size + 1, end, exponent).ptr;
        double number = 0.0;
        const std::errc error = std::from_chars(m_digits.data(), last, number).ec;
        if (error == std::errc::result_out_of_range && exponent > 0)
            return {};
        return number;
    }

private:
    /// Digits behind these cannot change a double any more, but for ties that no amount ever meets.
    static constexpr std::size_t Kept = 40;
    static constexpr std::size_t ExponentSpace = 16;

    std::array<char, Kept + ExponentSpace> m_digits;
    std::size_t m_size = 0;
    int m_exponent = 0;
    bool m_inFraction = false;
    bool m_empty = true;
};

/// Sign, brackets and currency symbol, each of them once and on either side of the digits.
class Marks
{
public:
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
        if (!m_currency && cursor.take(RegionalSettings::current().currencySymbol))
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
    DigitCollector digits = takeDigits(cursor, u'.', QChar());
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
    Marks marks;
    marks.takeBefore(cursor);
    DigitCollector digits = takeDigits(cursor, region.decimalSeparator, region.thousandsSeparator);
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

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
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
    constexpr qsizetype UsualLength = 128;
    QStringDecoder decoder(QStringDecoder::Utf8);
    QVarLengthArray<QChar, UsualLength> utf16(decoder.requiredSpace(static_cast<qsizetype>(utf8.size())));
    const QChar *const end = decoder.appendToBuffer(utf16.data(), QByteArrayView(utf8));
    return readNumber(QStringView(utf16.data(), end));
}

bool IsNumeric(QStringView text)
{
    return readNumber(text).has_value();
}
