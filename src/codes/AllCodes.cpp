#include "codes/AllCodes.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <span>

namespace {

struct Symbol
{
    char16_t character;
    const char *widths;
};

constexpr std::array code39{
    Symbol{u'0', "111221211"}, Symbol{u'1', "211211112"}, Symbol{u'2', "112211112"}, Symbol{u'3', "212211111"},
    Symbol{u'4', "111221112"}, Symbol{u'5', "211221111"}, Symbol{u'6', "112221111"}, Symbol{u'7', "111211212"},
    Symbol{u'8', "211211211"}, Symbol{u'9', "112211211"}, Symbol{u'A', "211112112"}, Symbol{u'B', "112112112"},
    Symbol{u'C', "212112111"}, Symbol{u'D', "111122112"}, Symbol{u'E', "211122111"}, Symbol{u'F', "112122111"},
    Symbol{u'G', "111112212"}, Symbol{u'H', "211112211"}, Symbol{u'I', "112112211"}, Symbol{u'J', "111122211"},
    Symbol{u'K', "211111122"}, Symbol{u'L', "112111122"}, Symbol{u'M', "212111121"}, Symbol{u'N', "111121122"},
    Symbol{u'O', "211121121"}, Symbol{u'P', "112121121"}, Symbol{u'Q', "111111222"}, Symbol{u'R', "211111221"},
    Symbol{u'S', "112111221"}, Symbol{u'T', "111121221"}, Symbol{u'U', "221111112"}, Symbol{u'V', "122111112"},
    Symbol{u'W', "222111111"}, Symbol{u'X', "121121112"}, Symbol{u'Y', "221121111"}, Symbol{u'Z', "122121111"},
    Symbol{u'-', "121111212"}, Symbol{u'.', "221111211"}, Symbol{u' ', "122111211"}, Symbol{u'$', "121212111"},
    Symbol{u'/', "121211121"}, Symbol{u'+', "121112121"}, Symbol{u'%', "111212121"}, Symbol{u'*', "121121211"},
};
constexpr auto startStop39 = "121121211";

constexpr std::array codabar{
    Symbol{u'1', "1111221"}, Symbol{u'2', "1112112"}, Symbol{u'3', "2211111"}, Symbol{u'4', "1121121"},
    Symbol{u'5', "2111121"}, Symbol{u'6', "1211112"}, Symbol{u'7', "1211211"}, Symbol{u'8', "1221111"},
    Symbol{u'9', "2112111"}, Symbol{u'0', "1111122"}, Symbol{u'-', "1112211"}, Symbol{u'$', "1122111"},
    Symbol{u':', "2111212"}, Symbol{u'/', "2121112"}, Symbol{u'.', "2121211"}, Symbol{u'+', "1121212"},
    Symbol{u'A', "1122121"}, Symbol{u'B', "1212112"}, Symbol{u'C', "1112122"}, Symbol{u'D', "1112221"},
};
constexpr auto startStopCodabar = "1122121";

/// Widths of one digit's elements, which are all bars or all spaces.
constexpr std::array code2of5{
    Symbol{u'1', "31113"}, Symbol{u'2', "13113"}, Symbol{u'3', "33111"}, Symbol{u'4', "11313"}, Symbol{u'5', "31311"},
    Symbol{u'6', "13311"}, Symbol{u'7', "11133"}, Symbol{u'8', "31131"}, Symbol{u'9', "13131"}, Symbol{u'0', "11331"},
};
constexpr qsizetype most2of5 = 21;

/// Set B in the order of its values. Where the standard has the lower-case L stands a second "I", so that an L is
/// skipped; that stays, so that a code's label is the one that was always printed for it.
constexpr QStringView alphabet128 = u" !\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_"
                                    u"`abcdefghijkImnopqrstuvwxyz{|}~";
constexpr std::array widths128{
    "212222", "222122", "222221", "121223", "121322", "131222", "122213", "122312", "132212", "221213", // 0
    "221312", "231212", "112232", "122132", "122231", "113222", "123122", "123221", "223211", "221132", // 10
    "221231", "213212", "223112", "312131", "311222", "321122", "321221", "312212", "322112", "322211", // 20
    "212123", "212321", "232121", "111323", "131123", "131321", "112313", "132113", "132311", "211313", // 30
    "231113", "231311", "112133", "112331", "132131", "113123", "113321", "133121", "313121", "211331", // 40
    "231131", "213113", "213311", "213131", "311123", "311321", "331121", "312113", "312311", "332111", // 50
    "314111", "221411", "431111", "111224", "111422", "121124", "121421", "141122", "141221", "112214", // 60
    "112412", "122114", "122411", "142112", "142211", "241211", "221114", "413111", "241112", "134111", // 70
    "111242", "121142", "121241", "114212", "124112", "124211", "411212", "421112", "421211", "212141", // 80
    "214121", "412121", "111143", "111341", "131141", "114113", "114311", "411113", "411311", "113141", // 90
    "114131", "311141", "411131", "211412", "211214", "211232",                                         // 100
};
constexpr qsizetype startB128 = 104;
constexpr qsizetype modulus128 = 103;
constexpr auto stop128 = "2331112";

/// Null for a character that the code doesn't know.
const char *widthsOf(QChar character, std::span<const Symbol> code)
{
    for (const Symbol &each : code)
        if (each.character == character)
            return each.widths;
    return nullptr;
}

/// Characters between a start and a stop character, each with a narrow space behind it.
QString withGaps(const QString &texto, std::span<const Symbol> code, const char *startStop)
{
    constexpr QChar gap = u'1';
    QString pattern = QString(startStop) + gap;
    for (const QChar character : texto)
        if (const char *widths = widthsOf(character, code))
            pattern += QString(widths) + gap;
    return pattern + startStop;
}

} // namespace

QString Codigo_39(const QString &texto)
{
    return withGaps(texto, code39, startStop39);
}

QString Codigo_128(const QString &texto)
{
    QString pattern = widths128[startB128];
    qsizetype sum = startB128;
    for (qsizetype index = 0; index < texto.size(); ++index) {
        const qsizetype value = alphabet128.indexOf(texto[index]);
        if (value < 0)
            continue;
        pattern += widths128[static_cast<std::size_t>(value)];
        // Skipped characters use up their position, too.
        sum += (index + 1) * value;
    }
    return pattern + widths128[static_cast<std::size_t>(sum % modulus128)] + stop128;
}

bool code128Has(const QString &texto)
{
    return std::ranges::all_of(texto, [](QChar character) { return alphabet128.contains(character); });
}

QString Codigo_2de5(const QString &texto)
{
    QStringList digits;
    for (const QChar character : texto)
        if (const char *widths = widthsOf(character, code2of5); widths && digits.size() < most2of5)
            digits += widths;

    QString pattern = "1111";
    for (qsizetype first = 0; first < digits.size(); first += 2) {
        // The last digit of an odd number has no partner; its elements then stand alone.
        const QString partner = digits.value(first + 1);
        for (qsizetype element = 0; element < digits[first].size(); ++element)
            pattern += digits[first].mid(element, 1) + partner.mid(element, 1);
    }
    return pattern + "311";
}

QString Codigo_Codabar(const QString &texto)
{
    return withGaps(texto, codabar, startStopCodabar);
}
