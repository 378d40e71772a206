#include "cafe/DemoData.h"

#include "cafe/Chance.h"
#include "cafe/Resources.h"
#include "cafe/RowWriter.h"
#include "platform/text/Dates.h"
#include "platform/text/RegionalSettings.h"

#include <QHash>

#include <cmath>

namespace {

enum Purpose : quint64
{
    Street,
    House,
    Flat,
    District,
    PostCode,
    Phone,
    Mobile,
    Parent,
    Birth,
    Group,
    Remark,
    Consent
};

struct Names
{
    QStringList first = resourceLines("first_names.txt");
    QStringList last = resourceLines("last_names.txt");

    qsizetype count() const { return first.size() * last.size() * (last.size() - 1); }
};

struct Person
{
    QString first, middle, last;

    QString fullName() const { return (first + ' ' + middle + ' ' + last).toUpper(); }
};

/// Each number below the count of names gives another person: the factor is prime and shares no divisor with it.
Person person(const Names &names, qsizetype number)
{
    constexpr qsizetype stride = 1000003;
    qsizetype rest = number * stride % names.count();
    const qsizetype first = rest % names.first.size();
    rest /= names.first.size();
    const qsizetype middle = rest % names.last.size();
    const qsizetype other = rest / names.last.size();
    return {names.first[first], names.last[middle], names.last[other < middle ? other : other + 1]};
}

QString withoutAccents(const QString &text)
{
    QString plain;
    for (const QChar c : text.normalized(QString::NormalizationForm_D)) {
        if (c.category() != QChar::Mark_NonSpacing)
            plain += c;
    }
    return plain;
}

/// So many drawn digits.
QString digits(quint64 row, Purpose purpose, int places)
{
    const auto limit = static_cast<qsizetype>(std::pow(10, places));
    return QString("%1").arg(drawn(row, purpose, limit), places, 10, QChar('0'));
}

/// A date box holds two digits, two digits and four digits, in the order of the region.
QString dateBoxText(QDate date)
{
    const bool monthFirst = RegionalSettings::current().shortDate.startsWith('M');
    return FormatDate(date.startOfDay(), monthFirst ? u"MM/dd/yyyy" : u"dd/MM/yyyy");
}

QString documentOf(qsizetype row)
{
    constexpr qsizetype documents = 90'000'000;
    constexpr qsizetype stride = 7'654'321; // shares no divisor with the count, so that no document comes twice
    QString number = QString::number(10'000'000 + row * stride % documents);
    return number.insert(5, '.').insert(2, '.') + '-' + QString::number(row % 10);
}

QString groupOf(quint64 row, bool underAge)
{
    if (underAge)
        return drawn(row, Group, 3) == 0 ? "NORMAL" : "ESTUDANTE";
    static const QStringList groups{"NORMAL", "NORMAL",     "NORMAL",    "NORMAL",      "NORMAL",   "ESTUDANTE",
                                    "VIP",    "FIDELIDADE", "ESTUDANTE", "FUNCIONÁRIO", "PROFESSOR"};
    return groups[drawn(row, Group, groups.size())];
}

} // namespace

int demoCustomerLimit()
{
    return static_cast<int>(Names().count());
}

void fillDemoCustomers(Database &db, int count)
{
    const Names names;
    const QStringList streets = resourceLines("streets.txt");
    const QStringList districts = resourceLines("districts.txt");
    const QStringList remarks = resourceLines("remarks.txt");
    const QString nothing = "------";
    const QDate firstBirth(1948, 1, 1);
    const QDate lastBirth(2013, 12, 31);
    const QDate lastAdult(2008, 12, 31);
    QHash<QString, int> nicksTaken;

    RowWriter writer(db, "Clientes", {"Codigo",          "Nome",          "Data_Nasc",   "Rua",       "Numero",
                                      "Complemento",     "Bairro",        "Cidade",      "UF",        "CEP",
                                      "Tel_Residencial", "Tel_Comercial", "Tel_Celular", "E_mail",    "Obs",
                                      "Grupo",           "Nick",          "Filiacao",    "Documento", "Autorizado",
                                      "CaminhoFoto",     "MsgObs"});
    for (int i = 0; i < count; ++i) {
        const auto row = static_cast<quint64>(i);
        const Person who = person(names, i);
        const QString address = withoutAccents(who.first.section(' ', 0, 0) + '.' + who.last);
        const int namesakes = nicksTaken[address]++;
        const QString nick = namesakes == 0 ? address : address + QString::number(namesakes + 1);
        // Here and there an attendant left a box empty, and the row holds what stands for nothing there.
        const bool hurried = i % 9 == 4;
        const QDate birth = firstBirth.addDays(drawn(row, Birth, firstBirth.daysTo(lastBirth)));
        const bool underAge = !hurried && birth > lastAdult;
        const bool noted = i % 12 == 7;
        const Person parent{names.first[drawn(row, Parent, names.first.size())], who.middle, who.last};

        const auto unlessHurried = [&](const QString &text) { return hurried ? nothing : text; };

        writer.write({QString::number(i + 1),
                      who.fullName(),
                      hurried ? "01/01/1900" : dateBoxText(birth),
                      unlessHurried(streets[drawn(row, Street, streets.size())].toUpper()),
                      unlessHurried(QString::number(1 + drawn(row, House, 1500))),
                      i % 5 == 0 ? QString("APTO %1").arg(101 + drawn(row, Flat, 800)) : nothing,
                      unlessHurried(districts[drawn(row, District, districts.size())].toUpper()),
                      "POUSO VERDE",
                      "MG",
                      hurried ? "00.000-000" : "37.99" + digits(row, PostCode, 1) + '-' + digits(row, PostCode, 3),
                      i % 3 == 0 ? "(35) 3421-" + digits(row, Phone, 4) : nothing,
                      nothing,
                      unlessHurried("(35) 99" + digits(row, Mobile, 3) + '-' + digits(row, Mobile, 4)),
                      unlessHurried(nick.toLower() + "@example.com"),
                      noted ? remarks[drawn(row, Remark, remarks.size())] : nothing,
                      groupOf(row, underAge),
                      i % 17 == 16 ? nothing : nick.toUpper(),
                      parent.fullName(),
                      i % 11 == 10 ? nothing : documentOf(i),
                      underAge && drawn(row, Consent, 5) > 0 ? "True" : "False",
                      "-----",
                      noted ? "True" : "False"});
    }
}
