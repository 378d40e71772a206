#include "cafe/Cafe.h"
#include "cafe/Resources.h"
#include "data/Connection.h"
#include "data/Esquema.h"
#include "platform/base/Err.h"
#include "platform/files/IniProfile.h"
#include "platform/jet/DBEngine.h"
#include "platform/text/RegionalSettings.h"

#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QStringList column(Database &db, const QString &sql)
{
    QStringList values;
    for (const RecordsetHandle rs = db.OpenRecordset(sql); !rs->Eof(); rs->MoveNext())
        values.append(rs->Fields(0).text());
    return values;
}

} // namespace

/// The texts and rows that a new café folder holds.
class tst_cafe_content : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        RegionalSettings::use(QLocale("pt_BR"));
        createCafe(cafe(), {});
    }

    void languagesAreComplete()
    {
        const ResourceTable keys = resourceTable("language_keys.tsv");
        // Programs lose a text without a word when its key falls out of the list, so their number is written down here.
        QCOMPARE(keys.rows.size(), 300);
        for (const QString language : {"Portugues", "Ingles", "Espanhol"}) {
            QVERIFY(WritePrivateProfileString("Config_Regional", "Idioma", language.toUpper() + ".LNG",
                                              cafe() + "/config.ini"));
            QCOMPARE(checkCafe(cafe()), QStringList());
            for (const QStringList &key : keys.rows) {
                const QString translated = text(language, key[0], key[1]);
                const QString original = text("Portugues", key[0], key[1]);
                const QString name = language + ' ' + key.join('.');
                QVERIFY2(!translated.isEmpty(), qPrintable(name));
                // Pieces that are joined to names and numbers need their blanks in every language.
                if (!key[1].startsWith("tab_"))
                    QVERIFY2(translated.startsWith(' ') == original.startsWith(' ') &&
                                 translated.endsWith(' ') == original.endsWith(' '),
                             qPrintable(name));
            }
        }
    }

    void keysRefuseOrRenumber()
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
            QVERIFY_THROWS_EXCEPTION(RunTimeError, db->Execute(QString("Insert into ") + row));
        }
    }

    void bringsAnEarlierFileUpToDate()
    {
        const QString folder = m_place.filePath("old");
        createCafe(folder, {});
        QVERIFY(QFile::remove(dataFileOf(folder)));
        const DatabaseHandle db = DBEngine::CreateDatabase(dataFileOf(folder), connectText());
        QVERIFY_THROWS_EXCEPTION(RunTimeError, upgradeCafe(folder));
        db->applySchema({esquemaDoBanco().first()});
        for (const char *row : {"1,'8,5','0'", "2,'10%',''"})
            db->Execute("Insert into Descontos (Codigo,Relativo,Absoluto) values (" + QString(row) + ")");
        QCOMPARE(checkCafe(folder), QStringList());
        QCOMPARE(upgradeCafe(folder), QStringList({"Discount rule 1: Relativo \"8,5\" is read as 8,5.",
                                                   "Discount rule 2: Relativo \"10%\" is read as 10.",
                                                   "Discount rule 2: Absoluto \"\" is read as 0."}));
        QCOMPARE(column(*openDataFile(folder), "Select Relativo From Descontos Where Absoluto=0 Order By Codigo"),
                 QStringList({"8,5", "10"}));
        QCOMPARE(checkCafe(folder) + upgradeCafe(folder), QStringList());
    }

    void thousandsOfRowsCanBeToldApart()
    {
        constexpr int Customers = 32767;
        constexpr int Products = 3000;
        const QString folder = m_place.filePath("large");
        createCafe(folder, {true, Customers, Products, 0, false});
        const DatabaseHandle db = openDataFile(folder);
        const auto repeated = [&](const QString &field, const QString &table, const QString &nothing) {
            QStringList values = column(*db, "Select " + field + " From " + table);
            values.removeAll(nothing);
            return values.size() - QSet<QString>(values.begin(), values.end()).size();
        };
        QCOMPARE(column(*db, "Select Nome From Clientes").size(), Customers);
        QCOMPARE(column(*db, "Select Codigo From Produtos").size(), Products + 1);
        for (const char *field : {"Nome", "Nick", "Documento"})
            QCOMPARE(repeated(field, "Clientes", "------"), 0);
        for (const auto &[field, nothing] :
             {std::pair("Descrição", ""), {"Cod", "---"}, {"Cod_Barra", "-------------"}})
            QCOMPARE(repeated(field, "Produtos", nothing), 0);
        // What the boxes of the customer window hold at most.
        for (const auto &[field, limit] :
             {std::pair<QString, int>("Nome", 50), {"Nick", 30}, {"Rua", 33}, {"Filiacao", 50}, {"CEP", 10}})
            for (const QString &value : column(*db, "Select " + field + " From Clientes"))
                QVERIFY2(value == value.toUpper() && !value.isEmpty() && value.size() <= limit, qPrintable(value));
    }

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

QTEST_GUILESS_MAIN(tst_cafe_content)
#include "tst_cafe_content.moc"
