#include "platform/text/UpperPrefix.h"

namespace {
/// Beyond these letters, and at this one among them, a capital may be longer than its small letter.
constexpr char16_t lastSimpleLetter = 0x017f;
constexpr char16_t sharpS = 0x00df;
constexpr char16_t firstSmallLetter = 'a';
} // namespace

bool UpperPrefix::begins(const QString &text) const
{
    const QChar *letter = text.constData();
    const QChar *const end = letter + text.size();
    for (const QChar wanted : m_term) {
        if (letter == end)
            return false;
        if (*letter != wanted) {
            if (*letter > lastSimpleLetter || *letter == sharpS)
                return text.toUpper().startsWith(m_term);
            if (*letter < firstSmallLetter || letter->toUpper() != wanted)
                return false;
        }
        ++letter;
    }
    return true;
}
