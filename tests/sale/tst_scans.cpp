#include "tests/sale/SaleCounter.h"
#include "tests/support/KeyQueue.h"

#include <QAbstractItemView>
#include <QMessageBox>
#include <QTimer>

namespace {
const QString waterCode = "7891200000074";
const QString sweetCode = "78900001";
const QString coffeeCode = "17891200000019";

class ScanCounter : public SaleCounter
{
public:
    ScanCounter()
    {
        change("Produtos", "Cod_Barra='" + sweetCode + "' Where Codigo=3");
        change("Produtos", "Cod_Barra='" + coffeeCode + "' Where Codigo=4");
        open();
    }
    bool isOffered(const QString &code)
    {
        auto &box = at<QLineEdit>("txtcod_barra");
        return box.hasFocus() && box.selectedText() == code;
    }
};
} // namespace

/// A scanner that types wherever the keyboard stands, through the window system's queue.
class tst_scans : public QObject
{
    Q_OBJECT

private slots:
    void fillsTheCartWithoutAKeyBetween()
    {
        ScanCounter counter;
        counter.add("Produtos", "Codigo=5, Descrição='DOCE', Cod_Barra='78900002'");
        counter.add("Produtos", "Codigo=6, Descrição='ESFIHA', Cod_Barra='78900003'");
        counter.open();
        counter.at("txtnome").setFocus();
        // All that scanners end a code with, the slowest and the fastest of them; two codes wait behind a busy window.
        KeyQueue().type(waterCode, 5).press(Qt::Key_Tab, 57, Qt::NoModifier, "\t").arrive();
        KeyQueue().type(sweetCode + "\n", 55).press(Qt::Key_J, 20, Qt::ControlModifier, "\n").arrive();
        // Between them she types how many.
        KeyQueue().type(coffeeCode + "\n\n", 20).type("9", 400).type("7", 400).type("8900002\n", 30).arrive();
        QCOMPARE(counter.shown("txtquantidade"), QString("9"));
        scan("78900003");
        QCOMPARE(counter.cart(), (QStringList{"ÁGUA|1|10,00", "BALA|1|10,00", "CAFÉ|9|90,00", "DOCE|9|90,00"}));
        KeyQueue().type("3\n", 200).arrive();
        QCOMPARE(counter.cart().last(), QString("ESFIHA|3|30,00"));
        // An Enter of her own, some time behind the scanner's.
        scan(sweetCode);
        KeyQueue().type("\n", 200).arrive();
        QCOMPARE(counter.cart()[1], QString("BALA|4|40,00"));
        QCOMPARE(counter.shown("txtnome"), QString("ANA LIMA"));
    }

    void reachesNoOtherControl()
    {
        ScanCounter counter;
        counter.put("12");
        counter.at("cmbprodutos").setFocus();
        counter.at<QComboBox>("cmbprodutos").showPopup();
        const auto texts = [&] {
            return QStringList{counter.shown("txtvalor_pago"), counter.shown("txtvalor_desconto"),
                               counter.shown("txtquantidade"), counter.shown("txtnome")};
        };
        for (const QString name : {"", "txtvalor_pago", "txtvalor_desconto", "txtquantidade", "txtnome", "cmbprodutos",
                                   "tab_clientes", "tab_consumo", "cmdfinalizar", "chkdesconto", "optpago"}) {
            if (!name.isEmpty())
                counter.at(name).setFocus();
            // With the product in the cart already, the quantity has none that waits for it.
            counter.at<QComboBox>("cmbprodutos").setCurrentIndex(-1);
            const QStringList before = texts();
            scan(sweetCode);
            QCOMPARE(texts(), before);
            QCOMPARE(counter.shown("cmbprodutos"), QString("BALA"));
            QVERIFY(!counter.at<QAbstractButton>("chkdesconto").isChecked());
            QVERIFY2(counter.at("txtquantidade").hasFocus(), qPrintable(name));
        }
        QCOMPARE(counter.cart().size(), 1);
        QVERIFY(!counter.at<QComboBox>("cmbprodutos").view()->isVisible());
    }

    void leavesHandsAlone()
    {
        ScanCounter counter;
        counter.change("Clientes", "Nome='1234567 ABC' Where Codigo=1");
        counter.open();
        auto &box = counter.at<QLineEdit>("txtnome");
        const auto types = [&](const std::function<void(KeyQueue &)> &keys, const QString &text) {
            box.setFocus();
            box.clear();
            KeyQueue queue;
            keys(queue);
            queue.arrive();
            QTRY_COMPARE(box.text(), text);
            QCOMPARE(counter.shown("cmbprodutos"), QString());
        };
        types([](KeyQueue &keys) { keys.type("123456789", 60); }, "123456789");
        types([](KeyQueue &keys) { keys.type("1234x56789012345", 20); }, "1234x56789012345");
        // A pause at the end or within, and a code that nothing bears: Enter looks for a customer.
        const std::pair<QString, std::function<void(KeyQueue &)>> unknown[] = {
            {"12345678", [](KeyQueue &keys) { keys.type("12345678", 20).type("\n", 58); }},
            {"123456789", [](KeyQueue &keys) { keys.type("1234", 20).type("5", 58).type("6789\n", 20); }},
            {"123456789012345", [](KeyQueue &keys) { keys.type("123456789012345\n", 20); }},
            {"12345678901234567890123", [](KeyQueue &keys) { keys.type("12345678901234567890123\n", 20); }},
            {"A12345678", [](KeyQueue &keys) { keys.type("A12345678\n", 20); }},
            {"11111111", [](KeyQueue &keys) {
                 for (int key = 0; key < 8; ++key)
                     keys.press(Qt::Key_1, 20, Qt::NoModifier, "1", true);
                 keys.type("\n", 20);
             }}};
        for (const auto &[text, keys] : unknown) {
            counter.expectNotice("MsgBox6");
            types(keys, text);
        }
        // Keys without time stamps are no scan.
        counter.expectNotice("MsgBox6");
        counter.enter("txtnome", "12345678");
        QCOMPARE(counter.shown("cmbprodutos"), QString());
        // Seven digits are no code: Enter finds the customer.
        types([](KeyQueue &keys) { keys.type("1234567\n", 20); }, "1234567 ABC");
        counter.attendant.finish();
    }

    void answersNothing()
    {
        ScanCounter counter;
        PromptService::use(nullptr);
        counter.put("12");
        // Acts in the next message box, and closes it with Esc if it is open still.
        const auto inNextBox = [&](const std::function<void()> &action) {
            auto *look = new QTimer(qApp);
            QObject::connect(look, &QTimer::timeout, qApp, [&counter, look, action] {
                auto *message = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                if (!message || !message->isActiveWindow())
                    return;
                delete look;
                action();
                QVERIFY(message->isVisible());
                pressKey(*message, Qt::Key_Escape);
                // There is no window manager here to do it.
                counter.window().activateWindow();
            });
            look->start(1);
        };
        inNextBox([] {
            scan(coffeeCode);
            KeyQueue().type(sweetCode + "\n", 20).press(Qt::Key_J, 20, Qt::ControlModifier, "\n").arrive();
        });
        counter.enter("txtvalor_pago", "10");
        QTRY_VERIFY(counter.isOffered(sweetCode));
        QCOMPARE(counter.sold("Nome"), QStringList());
        // An unknown code is told of, whose box no second scan closes, and replaced by the next one.
        inNextBox([] { scan(coffeeCode); });
        scan("99999999");
        QTRY_VERIFY(counter.isOffered(coffeeCode));
        inNextBox([] {});
        scan("88888888");
        QVERIFY(counter.isOffered("88888888"));
        scan(sweetCode);
        QCOMPARE(counter.shown("cmbprodutos"), QString("BALA"));
        PromptService::use(&counter.attendant);
    }
};

STORY_MAIN(tst_scans)
#include "tst_scans.moc"
