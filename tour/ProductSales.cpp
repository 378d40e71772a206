#include "tour/ProductSales.h"

#include "cafe/Cafe.h"
#include "configuration/Idiomas.h"
#include "platform/base/LongWork.h"
#include "platform/window/BusySign.h"
#include "platform/window/Forms.h"
#include "platform/window/TextBox.h"
#include "sale/frmvenda.h"
#include "shell/frmprincipal.h"
#include "tests/support/Controls.h"
#include "tests/support/FileHolder.h"
#include "tests/support/KeyQueue.h"
#include "tests/support/PdfText.h"
#include "tour/Tour.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QTest>

#include <optional>

namespace {
QString box(const QString &key)
{
    return textoIdioma("frmvenda", key);
}

QString loaded(const QString &key)
{
    return textoCarregado("frmvenda", key);
}

/// The attendant at the sale window.
class Counter
{
public:
    explicit Counter(Tour &tour) : m_tour(tour), m_window(Forms::use<frmvenda>()) {}

    Form &window() { return m_window; }
    QString caption(const QString &label) { return control<QLabel>(m_window, label).text(); }

    void findCustomer(const QString &name) { enterText(control(m_window, "txtnome"), name); }

    void scan(const QString &barcode, const QString &quantity)
    {
        enterText(control<TextBox>(m_window, "txtcod_barra"), barcode);
        enterText(control(m_window, "txtquantidade"), quantity);
    }

    void choose(const QString &code, const QString &quantity) { putIntoCart(m_window, code, quantity); }

    void pay(const QString &amount)
    {
        auto &box = control<TextBox>(m_window, "txtvalor_pago");
        replaceText(box, amount);
        m_tour.picture(m_window, "frmvenda-payment");
        pressKey(box, Qt::Key_Return);
    }

    void expectQuestion(const QString &text)
    {
        m_tour.attendant().expect(text, vbYesNo + vbInformation, "Atenção", vbYes);
    }

    void expectSuccess() { m_tour.attendant().expectNotice(box("MsgBox13"), box("MsgBox1_6")); }

private:
    Tour &m_tour;
    Form &m_window;
};

const QString storedSale = "Select Nome,Descrição,Quantidade,Valor_Total,Desconto,Motivo_Desconto,Avulsa,Debito from "
                           "Venda_Produtos Where Codigo=";

void sellToCustomer(Tour &tour, Counter &counter)
{
    tour.chapter("A customer's sale with a discount by itself, and change");
    const QString name = tour.value("Select Nome from Clientes Where Grupo='VIP' Order By Nome");
    counter.findCustomer(name);
    counter.scan("7891200001262", "2");
    counter.scan("7891200001194", "1");
    tour.expect("total", counter.caption("lbltotal"), "R$ 34,70");
    tour.expect("after the discount", counter.caption("lbltotal_final"), "R$ 32,96");

    counter.expectQuestion(loaded("String5") + "R$ 32,96" + loaded("String5_2") + "\n" + name + "?");
    counter.expectSuccess();
    tour.attendant().expectNotice(loaded("String9") + "\n\nENERGÉTICO LATA 473ML\n", "Atenção");
    counter.pay("40");
    tour.expect("first line", tour.row(storedSale + "1"),
                name + " | ENERGÉTICO LATA 473ML | 2 | 25,80 | 1,29 | CLIENTE VIP | False | False");
    tour.expect("second line", tour.row(storedSale + "2"),
                name + " | ENERGÉTICO LATA 250ML | 1 | 8,90 | 0,45 | CLIENTE VIP | False | False");
    tour.expect("stock left", tour.value("Select Quantidade from Produtos Where Descrição='ENERGÉTICO LATA 473ML'"),
                "10");
    tour.expect("sounds", QString::number(tour.sounds().size()), "1");
    tour.expect("receipts", QString::number(tour.printouts().size()), "1");
}

void sellToWalkIn(Tour &tour, Counter &counter)
{
    tour.chapter("A walk-in sale of a service");
    click(counter.window(), "optavulsa");
    counter.choose("K01", "2");
    tour.expect("total", counter.caption("lbltotal_final"), "R$ 8,00");
    counter.expectQuestion(loaded("String5") + "R$ 8,00?");
    counter.expectSuccess();
    counter.pay("8");
    tour.expect("line", tour.row(storedSale + "3"),
                "------ | CAFÉ EXPRESSO | 2 | 8,00 | 0,00 | ----------- | True | False");
}

void sellOnCredit(Tour &tour, Counter &counter)
{
    tour.chapter("A sale that is paid later");
    const QString name = tour.value("Select Nome from Clientes Where Grupo='NORMAL' Order By Nome");
    click(counter.window(), "optcliente");
    counter.findCustomer(name);
    click(counter.window(), "optnão_pago");
    counter.choose("B01", "1");
    tour.picture(counter.window(), "frmvenda-unpaid");
    counter.expectQuestion(loaded("String5") + "R$ 2,50" + loaded("String6") + "\n" + name + "?");
    counter.expectSuccess();
    click(counter.window(), "cmdfinalizar");
    tour.expect("line", tour.row(storedSale + "4"),
                name + " | ÁGUA MINERAL SEM GÁS 500ML | 1 | 2,50 | 0,00 | ----------- | False | True");
    tour.expect("receipts", QString::number(tour.printouts().size()), "2");
    click(counter.window(), "optpago");
}

void sellOnHeldFile(Tour &tour, Counter &counter)
{
    constexpr int heldMilliseconds = 3000;
    constexpr int signOfThePicture = 8;
    tour.chapter("A sale while another program holds the data file for 3 s");
    click(counter.window(), "optavulsa");
    counter.choose("B01", "1");
    int signs = 0;
    LongWork::setSign([&](LongWork::Life life) {
        showBusySign(life);
        if (life == LongWork::Life::Waits && ++signs == signOfThePicture)
            tour.pictureAsItStands(counter.window(), "frmvenda-waits");
    });
    std::optional<FileHolder> holder;
    QElapsedTimer freeze;
    tour.attendant().expect(loaded("String5") + "R$ 2,50?", vbYesNo + vbInformation, "Atenção", vbYes, [&] {
        holder.emplace(dataFileOf(tour.cafe()), heldMilliseconds);
        freeze.start();
    });
    counter.expectSuccess();
    counter.pay("2,50");
    LongWork::setSign(showBusySign);
    tour.expect("line", tour.value("Select Descrição from Venda_Produtos Where Codigo=5"),
                "ÁGUA MINERAL SEM GÁS 500ML");
    tour.expect("waited out, with a sign",
                freeze.elapsed() >= heldMilliseconds && signs >= signOfThePicture ? "yes" : "no", "yes");
    click(counter.window(), "optcliente");
}

void beRefused(Tour &tour, Counter &counter)
{
    tour.chapter("A sale that the closed till refuses");
    closeTill(tour.cafe());
    counter.choose("B01", "1");
    tour.attendant().expectNotice(box("MsgBox7"), box("MsgBox1_6"));
    counter.pay("2,50");
    tour.expect("stored rows", tour.value("Select Count(*) from Venda_Produtos"), "5");
    openTill(tour.cafe());
}
/// The keys that the attendant presses herself; a scanner's are not hers.
class Hand
{
public:
    void type(const QString &characters) { press(characters, KeyQueue().type(characters, slow)); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers, const QString &text)
    {
        press("x", KeyQueue().press(key, slow, modifiers, text));
    }
    /// The attendant answers a box with Enter.
    void answer() { ++m_strokes; }
    int strokes() const { return m_strokes; }

private:
    static constexpr int slow = 150;

    void press(const QString &keys, KeyQueue &queue)
    {
        m_strokes += static_cast<int>(keys.size());
        queue.arrive();
        // A digit shows when no scanner can have typed it.
        QTest::qWait(slow);
    }

    int m_strokes = 0;
};

void scanFive(Tour &tour, Counter &counter)
{
    tour.chapter("Five scans in a row for a known customer, with change and a receipt");
    const auto receipts = tour.printouts().size();
    Hand hand;
    hand.press(Qt::Key_A, Qt::ControlModifier, {});
    hand.type("ADR\n");
    const QString name = control<TextBox>(counter.window(), "txtnome").text();
    for (const QString code : {"7891200000210", "7891200000494", "7891200000425", "7891200000562", "7891200000708"})
        scan(code);
    tour.picture(counter.window(), "frmvenda-scans");
    hand.type("\n");
    hand.press(Qt::Key_V, Qt::AltModifier, {});
    hand.type("50");
    tour.expect("change", counter.caption("lbltroco"), "R$ 24,40");
    counter.expectQuestion(loaded("String5") + "R$ 25,60" + loaded("String5_2") + "\n" + name + "?");
    counter.expectSuccess();
    hand.type("\n");
    hand.answer();
    hand.answer();
    tour.expect("lines stored", tour.value("Select Count(*) from Venda_Produtos Where Nome='" + name + "'"), "5");
    tour.expect("receipts", QString::number(tour.printouts().size() - receipts), "1");
    tour.expect("keys beside the scans", QString::number(hand.strokes()), "12");
}
} // namespace

void tourProductSales(Tour &tour)
{
    tour.chapter("The program starts");
    auto &main = Forms::use<frmprincipal>();
    main.Show();
    QCoreApplication::processEvents();
    tour.picture(main, "frmprincipal");
    click(main, "cmdvendaprod");

    {
        Counter counter(tour);
        tour.picture(counter.window(), "frmvenda");
        sellToCustomer(tour, counter);
        sellToWalkIn(tour, counter);
        sellOnCredit(tour, counter);
        sellOnHeldFile(tour, counter);
        beRefused(tour, counter);
        counter.window().Unload();
    }
    click(main, "cmdvendaprod");
    Counter counter(tour);
    scanFive(tour, counter);
    click(counter.window(), "lblconfigurar_recibo");
    tour.picture(loadedWindow("frmconfig_recibo"), "frmconfig_recibo");
    main.Unload();
}
