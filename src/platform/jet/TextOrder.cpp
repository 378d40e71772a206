#include "platform/jet/TextOrder.h"

#include <QChar>
#include <QList>
#include <QString>

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

constexpr char32_t firstNonAscii = 0x80;
/// The Latin letters of Europe; what lies behind them is rare enough to be looked up each time.
constexpr char32_t firstRare = 0x250;
constexpr char32_t replacement = 0xFFFD;

struct Weight
{
    /// Group of the character above its place in the group; 0 for a mark that joins the letter before it.
    char32_t primary = 0;
    char32_t accent = 0;
};

constexpr char32_t digitGroup = 1U << 24;
constexpr char32_t letterGroup = 2U << 24;

constexpr char32_t asciiWeight(char32_t character)
{
    if (character >= U'0' && character <= U'9')
        return digitGroup + character;
    if (character >= U'A' && character <= U'Z')
        return letterGroup + (character - U'A' + U'a');
    if (character >= U'a' && character <= U'z')
        return letterGroup + character;
    return character + 1;
}

constexpr auto asciiWeights = [] {
    std::array<char32_t, firstNonAscii> weights{};
    for (char32_t character = 0; character < firstNonAscii; ++character)
        weights[character] = asciiWeight(character);
    return weights;
}();

Weight lookUpWeight(char32_t character)
{
    if (QChar::isMark(character))
        return {0, character};
    if (!QChar::isLetterOrNumber(character))
        return {character + 1, 0};
    const QList<uint> parts = QString::fromUcs4(&character, 1).normalized(QString::NormalizationForm_KD).toUcs4();
    const char32_t base = QChar::toCaseFolded(parts.first());
    const char32_t accent = parts.size() > 1 ? parts[1] : 0;
    if (base < firstNonAscii)
        return {asciiWeight(base), accent};
    return {(QChar::isLetter(base) ? letterGroup : digitGroup) + base, accent};
}

const std::array<Weight, firstRare> &latinWeights()
{
    static const auto weights = [] {
        std::array<Weight, firstRare> table;
        for (char32_t character = 0; character < firstNonAscii; ++character)
            table[character] = {asciiWeights[character], 0};
        for (char32_t character = firstNonAscii; character < firstRare; ++character)
            table[character] = lookUpWeight(character);
        return table;
    }();
    return weights;
}

Weight weightOf(char32_t character)
{
    return character < firstRare ? latinWeights()[character] : lookUpWeight(character);
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

/// The next character that is no joined mark; the marks before it are added to `accents`. 0 at the end.
Weight takeWeight(std::string_view &text)
{
    Weight result;
    while (!text.empty()) {
        std::string_view rest = text;
        const Weight weight = weightOf(takeCharacter(rest));
        if (weight.primary != 0 && result.primary != 0)
            break;
        result.primary = std::max(result.primary, weight.primary);
        result.accent = std::max(result.accent, weight.accent);
        text = rest;
    }
    return result;
}

int order(char32_t left, char32_t right)
{
    return left < right ? -1 : static_cast<int>(left > right);
}

int compareBeyondAscii(std::string_view left, std::string_view right)
{
    int accents = 0;
    while (!left.empty() && !right.empty()) {
        const Weight leftWeight = takeWeight(left);
        const Weight rightWeight = takeWeight(right);
        if (leftWeight.primary != rightWeight.primary)
            return order(leftWeight.primary, rightWeight.primary);
        if (accents == 0)
            accents = order(leftWeight.accent, rightWeight.accent);
    }
    if (left.empty() != right.empty())
        return left.empty() ? -1 : 1;
    return accents;
}

bool isAscii(char byte)
{
    return static_cast<unsigned char>(byte) < firstNonAscii;
}

/// Where the first difference lies that is not one of case alone, or the first character beyond ASCII.
std::size_t equalAscii(std::string_view left, std::string_view right)
{
    const std::size_t shorter = std::min(left.size(), right.size());
    std::size_t i = 0;
    while (i < shorter && isAscii(left[i]) && isAscii(right[i]) &&
           asciiWeights[static_cast<unsigned char>(left[i])] == asciiWeights[static_cast<unsigned char>(right[i])])
        ++i;
    return i;
}

} // namespace

int compareByLanguage(std::string_view left, std::string_view right)
{
    std::size_t same = equalAscii(left, right);
    if (same < left.size() && same < right.size() && isAscii(left[same]) && isAscii(right[same]))
        return order(asciiWeights[static_cast<unsigned char>(left[same])],
                     asciiWeights[static_cast<unsigned char>(right[same])]);
    // A mark may follow the last common letter and belongs to it.
    same -= std::min<std::size_t>(same, 1);
    return compareBeyondAscii(left.substr(same), right.substr(same));
}

int compareAnyCase(std::string_view left, std::string_view right)
{
    const std::size_t same = equalAscii(left, right);
    left.remove_prefix(same);
    right.remove_prefix(same);
    while (!left.empty() && !right.empty()) {
        const int difference =
            order(QChar::toCaseFolded(takeCharacter(left)), QChar::toCaseFolded(takeCharacter(right)));
        if (difference != 0)
            return difference;
    }
    if (left.empty() != right.empty())
        return left.empty() ? -1 : 1;
    return 0;
}
