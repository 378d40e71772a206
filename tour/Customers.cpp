#include "tour/Customers.h"

#include "platform/window/Forms.h"
#include "shell/frmprincipal.h"
#include "tests/support/PdfText.h"
#include "tour/ListDesk.h"

#include <QCoreApplication>
#include <QFile>

namespace {
constexpr int customersOnPage = 9;

QString text(const QString &key)
{
    return textoIdioma("frmcadastro_clientes", key);
}

void takePhoto(Tour &tour, ListDesk &desk)
{
    click(desk.window(), "cmdwebcam");
    Form &webcam = loadedWindow("frmwebcam");
    click(webcam, "cmdcapturar_tela");
    tour.picture(webcam, "frmwebcam");
    click(webcam, "cmdconfirmar");
}

void registerCustomer(Tour &tour, ListDesk &desk)
{
    tour.chapter("A new customer, by keyboard alone but for the photo");
    control(desk.window(), "txtnome").setFocus();
    for (const char *entry :
         {"Sofia Almeida Prado", "07031998", "Helena Prado", "98.765.432-1", "sofia.prado", "", "Rua das Laranjeiras",
          "215", "Casa 2", "Centro", "", "", "", "(35) 3421-1010", "", "(35) 99912-3456", "sofia@example.com"})
        desk.fill(entry);
    typeText(*desk.window().focusWidget(), "Avisar do torneio.");
    takePhoto(tour, desk);
    tour.picture(desk.window(), "frmcadastro_clientes-registration");
    desk.expectQuestion("MsgBox21", "MsgBox13_2", vbInformation, vbNo);
    click(desk.window(), "cmdok");
    tour.expect("stored",
                tour.row("Select Codigo,Nome,Data_Nasc,Documento,Nick,Grupo,Rua,Numero,Cidade,UF,Tel_Comercial,E_mail,"
                         "Obs,Autorizado from Clientes Where Nome='SOFIA ALMEIDA PRADO'"),
                "301 | SOFIA ALMEIDA PRADO | 07/03/1998 | 98.765.432-1 | SOFIA.PRADO | NORMAL | RUA DAS LARANJEIRAS | "
                "215 | POUSO VERDE | MG | ------ | sofia@example.com | Avisar do torneio. | False");
    tour.expect("photo", tour.value("Select CaminhoFoto from Clientes Where Codigo=301").section('\\', -2),
                "FOTOS\\301.JPG");
    tour.expect("counted", desk.counted(), "301" + textoCarregado("frmcadastro_clientes", "String6"));
}

void renameBuyer(Tour &tour, ListDesk &desk)
{
    tour.chapter("A rename that the sales follow");
    const QString name = tour.value("Select Nome from Venda_Produtos Where Codigo=1");
    desk.find(name);
    click(desk.window(), "cmdeditar");
    replaceText(control(desk.window(), "txtnome"), name + " Neto");
    tour.picture(desk.window(), "frmcadastro_clientes-edit");
    desk.expectQuestion("MsgBox5", "MsgBox5_2");
    click(desk.window(), "cmdeditar");
    tour.expect("in the list", desk.selected(), name + " NETO");
    tour.expect("in the sale", tour.value("Select Nome from Venda_Produtos Where Codigo=1"), name + " NETO");
}

void search(Tour &tour, ListDesk &desk)
{
    tour.chapter("A search by the nick");
    desk.find("sofia.pr");
    tour.expect("found", desk.selected(), "SOFIA ALMEIDA PRADO");
    tour.picture(desk.window(), "frmcadastro_clientes-search");
}

void removeCustomers(Tour &tour, ListDesk &desk)
{
    tour.chapter("Three customers removed");
    clickCell(desk.list(), 4, 1);
    clickCell(desk.list(), 2, 1, Qt::ShiftModifier);
    tour.picture(desk.window(), "frmcadastro_clientes-removal");
    desk.expectQuestion("MsgBox11", "MsgBox1_2");
    desk.expectNotice("MsgBox13", "MsgBox13_2");
    click(desk.window(), "cmdexcluir");
    tour.expect("left", tour.value("Select Count(*) from Clientes"), "298");
    tour.expect("counted", desk.counted(), "298" + textoCarregado("frmcadastro_clientes", "String6"));
}

void printAndSave(Tour &tour, ListDesk &desk)
{
    tour.chapter("The list on paper and in a file");
    const int customers = desk.list().Rows() - 1;
    desk.expectQuestion("MsgBox15", "MsgBox15_2");
    click(desk.window(), "cmdimprimir");
    const QString printout = tour.path(tour.printouts().filter(text("DispositivoSaida1")).value(0));
    tour.expect("pages", QString::number(pdfPages(printout).size()),
                QString::number((customers + customersOnPage - 1) / customersOnPage));
    tour.expect("customers on them", QString::number(pdfLines(printout).filter(text("DispositivoSaida4")).size()),
                QString::number(customers));

    const QString saved = tour.path("clientes.txt");
    tour.attendant().expectSaveFile({}, saved);
    desk.expectNotice("MsgBox24", "MsgBox24_2");
    click(desk.window(), "cmdsalvar");
    QFile file(saved);
    const bool opened = file.open(QIODevice::ReadOnly);
    const QByteArray content = opened ? file.readAll() : QByteArray();
    tour.expect("customers in the file", QString::number(content.count(text("DispositivoSaida8").toLatin1())),
                QString::number(customers));
}
} // namespace

void tourCustomers(Tour &tour)
{
    auto &main = Forms::use<frmprincipal>();
    main.Show();
    QCoreApplication::processEvents();
    click(main, "cmdclientes");

    ListDesk desk(tour, {.window = "frmcadastro_clientes",
                         .list = "tab_clientes",
                         .count = "lbltotal_clientes",
                         .search = "txtnome_busca"});
    tour.picture(desk.window(), "frmcadastro_clientes");
    registerCustomer(tour, desk);
    renameBuyer(tour, desk);
    search(tour, desk);
    removeCustomers(tour, desk);
    printAndSave(tour, desk);
    main.Unload();
}
