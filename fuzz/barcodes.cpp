#include "codes/AllCodes.h"
#include "fuzz/Target.h"

#include <algorithm>

// Input: a text. The program is built once for each encoder, which the build numbers.

namespace {
/// Characters that one encoder knows, and the width of a character's elements together.
struct Code
{
    QString (*encode)(const QString &);
    QString alphabet;
};

QString known(const QString &text, const QString &alphabet)
{
    QString result;
    for (const QChar character : text)
        if (alphabet.contains(character))
            result += character;
    return result;
}

int modules(QStringView widths)
{
    int sum = 0;
    for (const QChar width : widths)
        sum += width.digitValue();
    return sum;
}

bool holdsOnly(QStringView widths, QStringView allowed)
{
    return std::all_of(widths.begin(), widths.end(), [&](QChar width) { return allowed.contains(width); });
}

/// Characters of one size between a start and a stop character, each with a gap behind it.
void checkGapped(const QString &text, const Code &code, qsizetype elements, qsizetype mostWide)
{
    const QString pattern = code.encode(text);
    const QString expected = known(text, code.alphabet);
    require(holdsOnly(pattern, u"12"), "an element is narrow or wide");
    require(pattern.size() == (expected.size() + 2) * (elements + 1) - 1,
            "a known character has its elements and a gap");
    require(pattern.left(elements) == pattern.right(elements), "start and stop are one character");
    for (qsizetype place = 0; place < expected.size(); ++place) {
        const QString widths = pattern.mid((place + 1) * (elements + 1), elements);
        require(widths == code.encode(expected[place]).mid(elements + 1, elements), "a character is always the same");
        require(widths.count('2') >= 2 && widths.count('2') <= mostWide, "a character has its wide elements");
        require(pattern[(place + 1) * (elements + 1) - 1] == '1', "a gap is narrow");
    }
}

void checkCode39(const QString &text)
{
    checkGapped(text, {Codigo_39, "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ-. $/+%*"}, 9, 3);
}

void checkCodabar(const QString &text)
{
    checkGapped(text, {Codigo_Codabar, "0123456789-$:/.+ABCD"}, 7, 3);
}

void checkCode2of5(const QString &text)
{
    constexpr qsizetype mostDigits = 21;
    const QString pattern = Codigo_2de5(text);
    const QString digits = known(text, "0123456789").left(mostDigits);
    require(holdsOnly(pattern, u"13"), "an element is narrow or wide");
    require(pattern.startsWith("1111") && pattern.endsWith("311"), "start and stop stand around the digits");
    require(pattern.size() == 4 + 5 * digits.size() + 3, "a digit has five elements, and 21 digits at most are taken");
    for (qsizetype place = 0; place < digits.size(); ++place) {
        const qsizetype pair = 4 + place / 2 * 10;
        const bool alone = place + 1 == digits.size() && place % 2 == 0;
        QString widths;
        for (qsizetype element = 0; element < 5; ++element)
            widths += pattern[alone ? pair + element : pair + 2 * element + place % 2];
        require(widths == Codigo_2de5(digits[place]).mid(4, 5) && widths.count('3') == 2, "a pair shares its elements");
    }
}

void checkCode128(const QString &text)
{
    QString alphabet;
    for (char16_t character = u' '; character <= u'~'; ++character)
        if (character != u'l')
            alphabet += QChar(character);
    const QString pattern = Codigo_128(text);
    const QString expected = known(text, alphabet);
    require(holdsOnly(pattern, u"1234"), "an element has one to four modules");
    require(pattern.size() == 6 * (expected.size() + 2) + 7, "a known character has six elements");
    require(pattern.startsWith("211214") && pattern.endsWith("2331112"), "set B stands between start and stop");
    for (qsizetype place = 0; place < pattern.size() - 7; place += 6)
        require(modules(QStringView(pattern).sliced(place, 6)) == 11, "a character has eleven modules");
    for (qsizetype place = 0; place < expected.size(); ++place)
        require(pattern.mid(6 * (place + 1), 6) == Codigo_128(expected[place]).mid(6, 6),
                "a character is always the same");

    qint64 sum = 104;
    for (qsizetype place = 0; place < text.size(); ++place)
        if (alphabet.contains(text[place]))
            sum += (place + 1) * (text[place].unicode() - u' ');
    // The check characters above the tilde can't be asked for by a text, nor can that of the missing letter.
    const auto character = static_cast<char16_t>(u' ' + sum % 103);
    if (alphabet.contains(QChar(character)))
        require(pattern.chopped(7).right(6) == Codigo_128(QChar(character)).mid(6, 6),
                "the check character follows from the text");
}

/// In the order of the build's numbers.
constexpr std::array encoders{checkCode128, checkCode39, checkCodabar, checkCode2of5};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    encoders.at(FUZZED_ENCODER)(QString::fromUtf8(Input(data, size).rest()));
    return 0;
}
