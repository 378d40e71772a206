#include "cafe/Cafe.h"
#include "cafe/Resources.h"
#include "cafe/TillSound.h"
#include "platform/base/Err.h"
#include "platform/files/IniProfile.h"

#include <QSet>
#include <QTemporaryDir>
#include <QtEndian>
#include <QtTest>

namespace {

QStringList column(Database &db, const QString &sql)
{
    QStringList values;
    for (const RecordsetHandle rs = db.OpenRecordset(sql); !rs->Eof(); rs->MoveNext())
        values.append(rs->Fields(0).text());
    return values;
}

bool isEan13(const QString &barcode)
{
    static const QRegularExpression form("^789\\d{10}$");
    int sum = 0;
    for (qsizetype i = 0; i < barcode.size(); ++i)
        sum += barcode[i].digitValue() * (i % 2 == 0 ? 1 : 3);
    return form.match(barcode).hasMatch() && sum % 10 == 0;
}

} // namespace

/// The texts and rows that a new café folder holds.
class tst_cafe_content : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { createCafe(cafe(), {}); }

    void languageIsComplete_data();
    void languageIsComplete();
    void textsFitTheReceipt_data() { languageIsComplete_data(); }
    void textsFitTheReceipt();
    void keysRefuseOrRenumber();
    void fieldsReadAsDeclared();
    void thousandsOfRowsCanBeToldApart();
    void demoIsTheSameEachTime();
    void discountRulesReachEveryKind();
    void soundIsAWave();

private:
    QString cafe() const { return m_place.filePath("cafe"); }
    QString text(const QString &language, const QString &section, const QString &key) const;

    QTemporaryDir m_place;
};

/// Read as the terminal does: from the first of five files that has the key, without its first and last character.
QString tst_cafe_content::text(const QString &language, const QString &section, const QString &key) const
{
    QString value;
    for (int number = 1; number <= 5 && value.isEmpty(); ++number)
        value = GetPrivateProfileString(section, key, {}, 500,
                                        cafe() + QString("/Languages/%1%2.lng").arg(language).arg(number));
    return value.size() > 1 ? value.mid(1, value.size() - 2) : value;
}

void tst_cafe_content::languageIsComplete_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"Portugues", "Ingles", "Espanhol"})
        QTest::newRow(language) << language;
}

void tst_cafe_content::languageIsComplete()
{
    QFETCH(QString, language);
    QVERIFY(
        WritePrivateProfileString("Config_Regional", "Idioma", language.toUpper() + ".LNG", cafe() + "/config.ini"));
    QCOMPARE(checkCafe(cafe()), QStringList());

    const ResourceTable keys = resourceTable("language_keys.tsv");
    // Programs lose a text without a word when its key falls out of the list, so their number is written down here.
    QCOMPARE(keys.rows.size(), 300);
    for (const QStringList &key : keys.rows) {
        const QString translated = text(language, key[0], key[1]);
        const QString original = text("Portugues", key[0], key[1]);
        QVERIFY2(!translated.isEmpty(), qPrintable(key.join('.')));
        // Pieces that are joined to names and numbers need their blanks in every language.
        if (!key[1].startsWith("tab_"))
            QVERIFY2(translated.startsWith(' ') == original.startsWith(' ') &&
                         translated.endsWith(' ') == original.endsWith(' '),
                     qPrintable(key.join('.')));
    }
    for (int number = 1; number <= 5; ++number) {
        QFile file(cafe() + QString("/Languages/%1%2.lng").arg(language).arg(number));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QCOMPARE(bytes.count("\r\n"), bytes.count('\n'));
        QVERIFY(bytes.count("=\"") > 10);
    }
}

void tst_cafe_content::textsFitTheReceipt()
{
    QFETCH(QString, language);
    const auto width = [&](const QString &section, const QStringList &keys) {
        qsizetype sum = 0;
        for (const QString &key : keys)
            sum += text(language, section, key).size();
        return sum;
    };
    constexpr qsizetype Counter = 5;
    constexpr qsizetype CompanyNumber = 18;
    constexpr qsizetype PortWidth = 80;
    QVERIFY(width("frmvenda", {"String1", "String1_2"}) + 2 * Counter < 28);
    QVERIFY(width("frmcodigo_rapido", {"String8", "String8_2"}) + 2 * Counter < 28);
    QVERIFY(width("frmvenda", {"DispositivoSaida1"}) < 33);
    QVERIFY(width("frmvenda", {"DispositivoSaida2"}) < 46 - 33);
    QVERIFY(width("frmvenda", {"DispositivoSaida10"}) + CompanyNumber <= 98 - 70);
    QVERIFY(width("frmcodigo_rapido", {"DispositivoSaida5"}) + CompanyNumber <= 98 - 70);
    QVERIFY(width("frmcodigo_rapido", {"DispositivoSaida12"}) + 50 <= PortWidth);
    // The headings of the narrow printer stand over columns of 26 and 13 characters and a blank.
    const QString heading = text(language, "frmvenda", "DispositivoSaida4");
    QVERIFY(heading[25] == ' ' && heading[26] != ' ' && heading[39] == ' ' && heading[40] != ' ');
    // Amounts stand below each other.
    const QStringList amounts{"DispositivoSaida16", "DispositivoSaida17", "DispositivoSaida18", "DispositivoSaida19"};
    QCOMPARE(width("frmvenda", amounts), 4 * width("frmvenda", {amounts[0]}));
}

void tst_cafe_content::keysRefuseOrRenumber()
{
    createCafe(m_place.filePath("keys"), {});
    const DatabaseHandle db = openDataFile(m_place.filePath("keys"));
    // Two terminals that read the same highest number: a sale is stored all the same, a customer is not.
    for (int i = 0; i < 2; ++i) {
        db->Execute("Insert into Venda_Produtos (Codigo,Nome) values (7,'A')");
        db->Execute("Insert into Venda_Codigos (Codigo,Nome) values (7,'A')");
        db->Execute("Insert into Links (Codigo,Nome) values (7,'A')");
    }
    for (const char *table : {"Venda_Produtos", "Venda_Codigos", "Links"})
        QCOMPARE(column(*db, QString("Select Codigo From %1 Order By Codigo").arg(table)), QStringList({"7", "8"}));

    for (const char *row :
         {"Clientes (Codigo) values (7)", "Produtos (Codigo) values (7)", "Categoria (Codigo) values (7)",
          "Descontos (Codigo) values (7)", "Registro_Caixa (ID_Caixa) values (7)",
          "Codigo_Acesso (Codigo_Acesso) values ('000000000007')"}) {
        db->Execute(QString("Insert into ") + row);
        QVERIFY_EXCEPTION_THROWN(db->Execute(QString("Insert into ") + row), RunTimeError);
    }
}

void tst_cafe_content::fieldsReadAsDeclared()
{
    const DatabaseHandle db = openDataFile(cafe());
    db->Execute("Insert into Produtos (Codigo,Descrição,Categoria,Servico) values (9,'BALA','diversos',1)");
    db->Execute("Insert into Descontos (Codigo,Relativo,Absoluto) values (9,'10','0')");
    db->Execute("Insert into Codigo_Acesso (Codigo_Acesso) values ('9')");
    QCOMPARE(column(*db, "Select Descrição From Produtos Where Categoria='DIVERSOS' And Servico=True And Codigo=9"),
             QStringList("BALA"));
    QCOMPARE(column(*db, "Select Codigo From Produtos Where Descrição='bala'"), QStringList());
    QCOMPARE(column(*db, "Select Relativo From Descontos Where Cdbl(Relativo)>Cdbl(Absoluto)"), QStringList("10"));
    QCOMPARE(column(*db, "Select Vendido From Codigo_Acesso Where Codigo_Acesso='9'"), QStringList("False"));
}

void tst_cafe_content::thousandsOfRowsCanBeToldApart()
{
    constexpr int Customers = 32767;
    constexpr int Products = 3000;
    const QString folder = m_place.filePath("large");
    createCafe(folder, {true, Customers, Products, 0, false});
    const DatabaseHandle db = openDataFile(folder);
    const auto repeated = [&](const QString &field, const QString &table, const QString &nothing = {}) {
        QStringList values = column(*db, "Select " + field + " From " + table);
        values.removeAll(nothing);
        return values.size() - QSet<QString>(values.begin(), values.end()).size();
    };
    QCOMPARE(column(*db, "Select Nome From Clientes").size(), Customers);
    QCOMPARE(column(*db, "Select Codigo From Produtos").size(), Products + 1);
    QCOMPARE(repeated("Nome", "Clientes"), 0);
    QCOMPARE(repeated("Nick", "Clientes", "------"), 0);
    QCOMPARE(repeated("Documento", "Clientes", "------"), 0);
    QCOMPARE(repeated("Descrição", "Produtos"), 0);
    QCOMPARE(repeated("Cod", "Produtos", "---"), 0);
    QCOMPARE(repeated("Cod_Barra", "Produtos", "-------------"), 0);

    QStringList barcodes = column(*db, "Select Cod_Barra From Produtos");
    barcodes.removeAll("-------------");
    QVERIFY(barcodes.size() > Products / 2);
    for (const QString &barcode : barcodes)
        QVERIFY2(isEan13(barcode), qPrintable(barcode));
    // What the boxes of the customer window hold at most.
    const QList<std::pair<QString, int>> limits{{"Nome", 50}, {"Nick", 30}, {"Rua", 33}, {"Filiacao", 50}, {"CEP", 10}};
    for (const auto &[field, limit] : limits) {
        for (const QString &value : column(*db, "Select " + field + " From Clientes"))
            QVERIFY2(value == value.toUpper() && !value.isEmpty() && value.size() <= limit, qPrintable(value));
    }
    for (const QString &code : column(*db, "Select Cod From Produtos"))
        QVERIFY2(code.size() == 3, qPrintable(code));
    QVERIFY(column(*db, "Select Nome From Categoria").size() >= 8);
}

void tst_cafe_content::demoIsTheSameEachTime()
{
    QStringList first;
    for (const char *name : {"once", "again"}) {
        createCafe(m_place.filePath(name), {true, 40, 30, 60, false});
        const DatabaseHandle db = openDataFile(m_place.filePath(name));
        QStringList all = column(*db, "Select Documento From Clientes Order By Codigo");
        all += column(*db, "Select Descrição From Venda_Produtos Order By Codigo");
        all += column(*db, "Select Nome From Venda_Produtos Order By Codigo");
        if (first.isEmpty())
            first = all;
        QCOMPARE(all, first);
    }
}

void tst_cafe_content::discountRulesReachEveryKind()
{
    createCafe(m_place.filePath("rules"), {true, 0, 0, 0, false});
    const DatabaseHandle db = openDataFile(m_place.filePath("rules"));
    for (const char *kind :
         {"Condicao='1'", "Condicao='2'", "Grupo='---'", "Grupo<>'---' And Categoria<>'-----'", "Fixo=True",
          "Fixo=False", "Cdbl(Relativo)>0 And Cdbl(Absoluto)=0", "Cdbl(Absoluto)>0 And Cdbl(Relativo)=0",
          "LiberarAuto=True And Cdbl(Absoluto)=0 And Cdbl(Relativo)=0", "TipoVenda='1' And AtoCadastro=True",
          "TipoVenda='1' And AtoCadastro=False", "TipoVenda='2' And LiberarAuto=True", "LiberarAuto=False"})
        QVERIFY2(!column(*db, QString("Select Codigo From Descontos Where ") + kind).isEmpty(), kind);
    // Rules speak of groups and categories that there are.
    QStringList known = column(*db, "Select Grupo From Grupo_Clientes") + column(*db, "Select Nome From Categoria");
    known += {"---", "-----"};
    for (const char *field : {"Grupo", "Categoria"}) {
        for (const QString &name : column(*db, QString("Select %1 From Descontos").arg(field)))
            QVERIFY2(known.contains(name), qPrintable(name));
    }
    const QString motive =
        GetPrivateProfileString("Descontos", "Padrao", {}, 500, m_place.filePath("rules/config.ini"));
    QVERIFY(column(*db, "Select Motivo_Desconto From Descontos").contains(motive));
}

void tst_cafe_content::soundIsAWave()
{
    const QByteArray wave = tillSound();
    const auto number = [&](int at) { return qFromLittleEndian<quint32>(wave.constData() + at); };
    QVERIFY(wave.startsWith("RIFF") && wave.mid(8, 8) == "WAVEfmt " && wave.mid(36, 4) == "data");
    QCOMPARE(number(4), static_cast<quint32>(wave.size() - 8));
    QCOMPARE(number(40), static_cast<quint32>(wave.size() - 44));
    QVERIFY(wave.size() < 60 * 1024);
    int loudest = 0;
    for (int i = 44; i < wave.size(); i += 2)
        loudest = std::max(loudest, std::abs(int{qFromLittleEndian<qint16>(wave.constData() + i)}));
    QVERIFY(loudest > 8000 && loudest < 32767);
}

QTEST_GUILESS_MAIN(tst_cafe_content)
#include "tst_cafe_content.moc"
