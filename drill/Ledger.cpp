#include "drill/Ledger.h"

#include "cafe/Cafe.h"
#include "data/Placeholders.h"
#include "drill/Terminal.h"
#include "platform/base/Err.h"
#include "platform/files/IniProfile.h"

#include <algorithm>

namespace {
constexpr const char *iniValue = "ini 0";

QString saleKey(const QString &product, const QString &quantity)
{
    return product + '|' + quantity;
}
} // namespace

struct Ledger::Stored
{
    /// How often each name, line and code is there.
    QHash<QString, int> customers;
    QHash<QString, int> lines;
    QHash<QString, int> codeSales;
    QHash<QString, int> links;
    QHash<QString, int> linkedCodes;
    /// Code, and what is marked in it: sold, linked.
    QHash<QString, QString> codes;
    /// The access code that a customer's number makes.
    QHash<QString, QString> codeOfCustomer;
    QHash<QString, double> stock;
    QHash<QString, double> sold;
    QHash<QString, QString> values;
};

Ledger::Ledger(const QString &cafe) : m_cafe(cafe)
{
    const Stored stored = readFiles();
    m_firstStock = stored.stock;
    m_values[iniValue].possible = {stored.values.value(iniValue)};
}

Ledger::Stored Ledger::readFiles() const
{
    constexpr int codeLength = 12;
    Stored stored;
    const DatabaseHandle db = openDataFile(m_cafe);
    const auto read = [&](const QString &sql, auto &&take) {
        for (const RecordsetHandle rs = db->OpenRecordset(sql); !rs->Eof(); rs->MoveNext())
            take([&](int field) { return rs->Fields(field).text(); });
    };
    read("Select Nome,Codigo,Complemento From Clientes", [&](auto field) {
        const QString name = field(0);
        ++stored.customers[name];
        stored.codeOfCustomer[name] = field(1).rightJustified(codeLength, '0');
        stored.values[name] = field(2);
    });
    read("Select Descrição,Quantidade From Venda_Produtos", [&](auto field) {
        ++stored.lines[saleKey(field(0), field(1))];
        stored.sold[field(0)] += field(1).toDouble();
    });
    read("Select Nome From Venda_Codigos", [&](auto field) { ++stored.codeSales[field(0)]; });
    read("Select Nome,Codigo_Acesso From Links", [&](auto field) {
        ++stored.links[field(0)];
        ++stored.linkedCodes[field(1)];
    });
    read("Select Codigo_Acesso,Vendido,Vinculado From Codigo_Acesso", [&](auto field) {
        stored.codes[field(0)] = QString(field(1) == "True" ? "1" : "0") + (field(2) == "True" ? "1" : "0");
    });
    for (const QString &product : drilledProducts)
        read("Select Quantidade From Produtos Where Descrição='" + product + "'",
             [&](auto field) { stored.stock[product] = field(0).toDouble(); });
    stored.values[iniValue] = GetPrivateProfileString("Recibo Produtos", "Imprimir", {}, 255, configFileOf(m_cafe));
    return stored;
}

void Ledger::take(const QStringList &journal)
{
    for (const QString &line : journal) {
        const QStringList words = line.split('\t');
        const QString kind = words.value(1);
        const int serial = words.value(2).toInt();
        const bool told = words.first() == "done";
        if (words.first() == "told")
            ++m_otherBoxes;
        else if (words.first() == "again")
            ++m_pressedAgain;
        if (words.first() != "try" && !told)
            continue;
        if (kind == "ini" || kind == "edit") {
            const QString key = kind == "ini" ? QString(iniValue) : drilledCustomer(serial);
            if (!m_values.contains(key))
                m_values[key].possible = {Placeholder::NoName};
            Value &value = m_values[key];
            (told ? value.told : value.tried) += 1;
            value.lastWasTold = told;
            if (told)
                value.possible = QStringList(words.value(3));
            else
                value.possible.append(words.value(3));
        } else if (told) {
            const auto claim = std::find_if(m_claims.rbegin(), m_claims.rend(), [&](const Claim &known) {
                return known.kind == kind && known.serial == serial;
            });
            claim->told = true;
        } else {
            m_claims.append({kind, serial, false, {}});
        }
    }
}

QString Ledger::partsOf(const Claim &claim, const Stored &stored)
{
    const QString name = drilledCustomer(claim.serial);
    const auto times = [](int count) { return QString::number(std::min(count, 9)); };
    if (claim.kind == "customer")
        return times(stored.customers.value(name));
    QString parts;
    if (claim.kind == "sale") {
        for (const QString &product : drilledProducts)
            parts += times(stored.lines.value(saleKey(product, QString::number(claim.serial))));
        return parts;
    }
    const QString code = stored.codeOfCustomer.value(name);
    const QString marks = stored.codes.value(code, "00");
    return (stored.codes.contains(code) ? "1" : "0") + times(stored.codeSales.value(name)) + marks[0] +
           times(std::max(stored.links.value(name), stored.linkedCodes.value(code))) + marks[1];
}

void Ledger::settle(Claim &claim, const QString &parts, Loss loss, Figures &figures)
{
    const QString what = claim.kind + ' ' + QString::number(claim.serial);
    if (!claim.found.isEmpty()) {
        if (claim.found != parts)
            m_damage.append(what + " was stored as " + claim.found + " and is now " + parts);
        return;
    }
    claim.found = parts;
    const bool none = parts.count('0') == parts.size();
    const bool whole = parts.count('1') == parts.size();
    if (parts.count('0') + parts.count('1') < parts.size())
        m_damage.append(what + " is stored more than once: " + parts);
    ++figures.tried;
    figures.told += claim.told ? 1 : 0;
    figures.stored += whole ? 1 : 0;
    figures.half += !whole && !none ? 1 : 0;
    figures.lost += claim.told && !whole ? 1 : 0;
    if (loss == Loss::IsCounted)
        return;
    if (claim.told && !whole)
        m_damage.append(what + " was told as stored and is not: " + parts);
    // Statements run one after the other, so that a later one never stands without those before it.
    if (parts.contains("01"))
        m_damage.append(what + " has a gap: " + parts);
}

void Ledger::settleValues(const Stored &stored, Loss loss, QMap<QString, Figures> &figures)
{
    for (auto value = m_values.begin(); value != m_values.end(); ++value) {
        const QString now = stored.values.value(value.key());
        Figures &sum = figures[value.key() == iniValue ? "ini" : "edit"];
        const bool possible = value->possible.contains(now);
        sum.tried += value->tried;
        sum.told += value->told;
        sum.lost += possible ? 0 : 1;
        // Only the last of several writes can be seen; those that were told before it came before it.
        sum.stored += possible ? value->told + (!value->lastWasTold && now == value->possible.last() ? 1 : 0) : 0;
        if (!possible && loss == Loss::IsDamage)
            m_damage.append(value.key() + " is \"" + now + "\" and should be " + value->possible.join(" or "));
        *value = Value{{now}};
    }
}

void Ledger::settleStock(const Stored &stored, const QList<int> &freshSales, Loss loss)
{
    for (const QString &product : drilledProducts) {
        const double behind = stored.stock.value(product) - (m_firstStock.value(product) - stored.sold.value(product));
        const double fresh = behind - m_behind.value(product);
        m_behind[product] = behind;
        if (fresh == 0)
            continue;
        ++m_oneOfTwo;
        // A line and its stock are two statements: the process may have ended between them, or one of them failed.
        const bool explained = std::any_of(freshSales.begin(), freshSales.end(), [&](int serial) {
            const bool hasLine = stored.lines.contains(saleKey(product, QString::number(serial)));
            return hasLine ? fresh == serial : fresh == -serial && loss == Loss::IsCounted;
        });
        if (!explained)
            m_damage.append("the stock of " + product + " is off by " + QString::number(fresh));
    }
}

QMap<QString, Figures> Ledger::compare(Loss loss)
{
    QMap<QString, Figures> figures;
    const Stored stored = readFiles();
    QList<int> freshSales;
    for (Claim &claim : m_claims) {
        const bool mayBeHalf = !claim.told || loss == Loss::IsCounted;
        if (claim.kind == "sale" && claim.found.isEmpty() && mayBeHalf)
            freshSales.append(claim.serial);
        settle(claim, partsOf(claim, stored), loss, figures[claim.kind]);
    }
    settleValues(stored, loss, figures);
    settleStock(stored, freshSales, loss);
    return figures;
}
