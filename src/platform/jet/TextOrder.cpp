#include "platform/jet/TextOrder.h"

#include <QChar>
#include <QList>
#include <QString>

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

namespace {

constexpr char32_t firstNonAscii = 0x80;
/// The Latin letters of Europe; what lies behind them is rare enough to be looked up each time.
constexpr char32_t firstRare = 0x250;
constexpr char32_t replacement = 0xFFFD;

/// The leading byte of a character in a key tells its group; 0 stands between the characters and the accents.
constexpr unsigned char firstSign = 0x02;
constexpr unsigned char otherSigns = 0x44;
constexpr unsigned char firstDigit = 0x45;
constexpr unsigned char otherDigits = 0x4F;
constexpr unsigned char firstLetter = 0x50;
constexpr unsigned char otherLetters = 0x6A;

constexpr auto asciiKeys = [] {
    std::array<unsigned char, firstNonAscii> keys{};
    unsigned char sign = firstSign;
    for (unsigned character = 0; character < firstNonAscii; ++character) {
        if (character >= '0' && character <= '9')
            keys[character] = static_cast<unsigned char>(firstDigit + character - '0');
        else if (character >= 'A' && character <= 'Z')
            keys[character] = static_cast<unsigned char>(firstLetter + character - 'A');
        else if (character >= 'a' && character <= 'z')
            keys[character] = static_cast<unsigned char>(firstLetter + character - 'a');
        else
            keys[character] = sign++;
    }
    return keys;
}();

bool isAsciiByte(char byte)
{
    return static_cast<unsigned char>(byte) < firstNonAscii;
}

char asciiKey(char byte)
{
    return static_cast<char>(asciiKeys[static_cast<unsigned char>(byte)]);
}

/// A character taken apart; a mark has no base.
struct Parts
{
    char32_t base = 0;
    char32_t accent = 0;
};

Parts lookUpParts(char32_t character)
{
    if (QChar::isMark(character))
        return {0, character};
    if (!QChar::isLetterOrNumber(character))
        return {character, 0};
    const QList<uint> parts = QString::fromUcs4(&character, 1).normalized(QString::NormalizationForm_KD).toUcs4();
    return {QChar::toCaseFolded(parts.first()), parts.size() > 1 ? parts[1] : 0};
}

Parts partsOf(char32_t character)
{
    static const auto latin = [] {
        std::array<Parts, firstRare> table;
        for (char32_t entry = 0; entry < firstRare; ++entry)
            table[entry] = lookUpParts(entry);
        return table;
    }();
    return character < firstRare ? latin[character] : lookUpParts(character);
}

void appendCode(std::string &key, char32_t code)
{
    key += static_cast<char>(code >> 16);
    key += static_cast<char>(code >> 8 & 0xFF);
    key += static_cast<char>(code & 0xFF);
}

void appendBase(std::string &key, char32_t base)
{
    if (base < firstNonAscii) {
        key += asciiKey(static_cast<char>(base));
        return;
    }
    const unsigned char group = QChar::isLetter(base) ? otherLetters : QChar::isNumber(base) ? otherDigits : otherSigns;
    key += static_cast<char>(group);
    appendCode(key, base);
}

std::size_t lengthOf(unsigned char lead)
{
    if (lead < 0x80)
        return 1;
    if (lead >= 0xC2 && lead < 0xE0)
        return 2;
    if (lead >= 0xE0 && lead < 0xF0)
        return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

/// Takes the first character off a text; a byte that is no UTF-8 stands for the replacement character.
char32_t takeCharacter(std::string_view &text)
{
    const auto lead = static_cast<unsigned char>(text.front());
    const std::size_t length = lengthOf(lead);
    if (length == 0 || length > text.size()) {
        text.remove_prefix(1);
        return replacement;
    }
    char32_t character = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i)
        character = character << 6 | (static_cast<unsigned char>(text[i]) & 0x3FU);
    text.remove_prefix(length);
    return character;
}

} // namespace

std::string languageKey(std::string_view utf8)
{
    const auto beyond = std::find_if_not(utf8.begin(), utf8.end(), isAsciiByte);
    std::string key(utf8.begin(), beyond);
    std::transform(key.begin(), key.end(), key.begin(), asciiKey);
    if (beyond == utf8.end())
        return key;

    std::vector<char32_t> accents(key.size());
    utf8.remove_prefix(key.size());
    while (!utf8.empty()) {
        const Parts parts = partsOf(takeCharacter(utf8));
        if (parts.base != 0) {
            appendBase(key, parts.base);
            accents.push_back(parts.accent);
        } else if (!accents.empty()) {
            accents.back() = std::max(accents.back(), parts.accent);
        }
    }
    while (!accents.empty() && accents.back() == 0)
        accents.pop_back();
    if (accents.empty())
        return key;
    key += '\0';
    for (const char32_t accent : accents)
        appendCode(key, accent);
    return key;
}

int compareAnyCase(std::string_view left, std::string_view right)
{
    while (!left.empty() && !right.empty()) {
        const char32_t leftFolded = QChar::toCaseFolded(takeCharacter(left));
        const char32_t rightFolded = QChar::toCaseFolded(takeCharacter(right));
        if (leftFolded != rightFolded)
            return leftFolded < rightFolded ? -1 : 1;
    }
    return static_cast<int>(!left.empty()) - static_cast<int>(!right.empty());
}
