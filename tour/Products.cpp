#include "tour/Products.h"

#include "platform/window/Forms.h"
#include "shell/frmprincipal.h"
#include "tests/support/PdfText.h"
#include "tour/ListDesk.h"
#include "windows/OpenForms.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QTimer>

#include <functional>

namespace {
constexpr int productsOnPage = 12;

/// Works a window that another one waits for, and closes it.
void whileOpen(const QString &name, const std::function<void()> &work)
{
    constexpr int turnMilliseconds = 20;
    QTimer::singleShot(turnMilliseconds, QCoreApplication::instance(), [name, work] {
        if (!Form_Aberto(name))
            return whileOpen(name, work);
        work();
        click(loadedWindow(name), "cmdsair");
    });
}

void addCategory(Tour &tour, ListDesk &desk)
{
    tour.chapter("A new category");
    whileOpen("frmcadastro_categoria", [&tour] {
        Form &categories = loadedWindow("frmcadastro_categoria");
        replaceText(control(categories, "txtnome"), "Sucos");
        click(categories, "cmdadicionar");
        tour.picture(categories, "frmcadastro_categoria");
    });
    click(desk.window(), "cmdcategoria");
    pickEntry(control<QComboBox>(desk.window(), "cmbcategoria"), "SUCOS");
}

void addProduct(Tour &tour, ListDesk &desk)
{
    tour.chapter("A new product, by keyboard and scanner alone");
    control(desk.window(), "txtdescrição").setFocus();
    for (const char *entry : {"Suco de caju 300ml", "Polpas do Vale", "6,90", "24", "7891200009990", "Z99", "", "6"})
        desk.fill(entry);
    click(desk.window(), "cmdadicionar");
    tour.expect("stored",
                tour.row("Select Descrição,Quantidade,Estoque_Min,Valor_Unitario,Fornecedor,Cod,Cod_Barra,Servico,"
                         "Cardapio,Categoria from Produtos Where Cod='Z99'"),
                "SUCO DE CAJU 300ML | 24 | 6 | 6,90 | POLPAS DO VALE | Z99 | 7891200009990 | False | True | SUCOS");
    desk.find("suco de ca");
    tour.expect("found", desk.selected(), "SUCO DE CAJU 300ML");
    tour.picture(desk.window(), "frmcadastro_produtos-new");
}

void editProduct(Tour &tour, ListDesk &desk)
{
    tour.chapter("An edited product, whose category the sales follow");
    const QString product = "ENERGÉTICO LATA 473ML";
    desk.find(product);
    click(desk.window(), "cmdeditar");
    replaceText(control(desk.window(), "txtvalor_unitario"), "13,50");
    pickEntry(control<QComboBox>(desk.window(), "cmbcategoria"), "SUCOS");
    tour.picture(desk.window(), "frmcadastro_produtos-edit");
    desk.expectQuestion("MsgBox14", "MsgBox11_2");
    click(desk.window(), "cmdeditar");
    tour.expect("price", tour.value("Select Valor_Unitario from Produtos Where Descrição='" + product + "'"), "13,50");
    tour.expect("category of its sales",
                tour.value("Select Categoria from Venda_Produtos Where Descrição='" + product + "'"), "SUCOS");
}

void removeProducts(Tour &tour, ListDesk &desk)
{
    tour.chapter("Three products removed");
    clickCell(desk.list(), 4, 1);
    clickCell(desk.list(), 2, 1, Qt::ShiftModifier);
    tour.picture(desk.window(), "frmcadastro_produtos-removal");
    desk.expectQuestion("MsgBox23", "MsgBox1_2");
    desk.expectNotice("MsgBox25", "MsgBox1_2");
    click(desk.window(), "cmdremover");
    tour.expect("left", tour.value("Select Count(*) from Produtos"), "149");
    tour.expect("counted", desk.counted(), "149" + textoCarregado("frmcadastro_produtos", "String3"));
}

void printList(Tour &tour, ListDesk &desk)
{
    tour.chapter("The list on paper");
    const int products = desk.list().Rows() - 1;
    desk.expectQuestion("MsgBox18", "MsgBox18_2");
    desk.expectNotice("MsgBox20", "MsgBox1_2");
    click(desk.window(), "cmdimprimir");
    const QString printout = tour.path(tour.printouts().filter(desk.text("DispositivoSaida1")).value(0));
    tour.expect("pages", QString::number(pdfPages(printout).size()),
                QString::number((products + productsOnPage - 1) / productsOnPage));
    tour.expect("products on them", QString::number(pdfLines(printout).filter(desk.text("DispositivoSaida7")).size()),
                QString::number(products));
}

void sellProduct(Tour &tour, Form &sale)
{
    tour.chapter("Back at the counter: the new product is sold with what lay in the cart");
    tour.expect("in the cart", control<FlexGrid>(sale, "tab_consumo").TextMatrix(1, 1), "CAFÉ EXPRESSO");
    enterText(control(sale, "txtcod_barra"), "7891200009990");
    enterText(control(sale, "txtquantidade"), "2");
    tour.picture(sale, "frmvenda-new-product");
    const auto text = [](const QString &key) { return textoIdioma("frmvenda", key); };
    tour.attendant().expect(textoCarregado("frmvenda", "String5") + "R$ 17,80?", vbYesNo + vbInformation, "Atenção",
                            vbYes);
    tour.attendant().expectNotice(text("MsgBox13"), text("MsgBox1_6"));
    enterText(control(sale, "txtvalor_pago"), "20");
    tour.expect("line",
                tour.row("Select Quantidade,Valor_Total,Categoria from Venda_Produtos Where "
                         "Descrição='SUCO DE CAJU 300ML'"),
                "2 | 13,80 | SUCOS");
    tour.expect("stock left", tour.value("Select Quantidade from Produtos Where Cod='Z99'"), "22");
}
} // namespace

void tourProducts(Tour &tour)
{
    auto &main = Forms::use<frmprincipal>();
    main.Show();
    QCoreApplication::processEvents();
    click(main, "cmdvendaprod");
    Form &sale = loadedWindow("frmvenda");
    click(sale, "optavulsa");
    putIntoCart(sale, "K01", "1");

    whileOpen("frmcadastro_produtos", [&tour] {
        ListDesk desk(tour, {.window = "frmcadastro_produtos",
                             .list = "tab_produtos",
                             .count = "lbltotal_produtos",
                             .search = "txtdescrição_busca"});
        tour.picture(desk.window(), "frmcadastro_produtos");
        addCategory(tour, desk);
        addProduct(tour, desk);
        editProduct(tour, desk);
        removeProducts(tour, desk);
        printList(tour, desk);
    });
    click(sale, "cmdcadastro_produtos");
    sellProduct(tour, sale);
    main.Unload();
}
