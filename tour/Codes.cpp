#include "tour/Codes.h"

#include "configuration/Idiomas.h"
#include "platform/window/Forms.h"
#include "shell/frmprincipal.h"
#include "tests/support/Controls.h"
#include "tests/support/PdfBarcodes.h"
#include "tests/support/PdfText.h"
#include "tour/Tour.h"

#include <QCoreApplication>
#include <QLabel>
#include <QTimer>

namespace {
QString text(const QString &key)
{
    return textoIdioma("frmcodigo_rapido", key);
}

/// Registers a customer who wants a code, and gives the window for it.
Form &customerWithCode(Tour &tour, const QString &name, bool photo)
{
    Form &desk = loadedWindow("frmcadastro_clientes");
    replaceText(control(desk, "txtnome"), name);
    click(desk, photo ? "cmdwebcam" : "cmdremover");
    if (photo) {
        click(loadedWindow("frmwebcam"), "cmdcapturar_tela");
        click(loadedWindow("frmwebcam"), "cmdconfirmar");
    }
    const auto question = [](const QString &key) { return textoIdioma("frmcadastro_clientes", key); };
    tour.attendant().expect(question("MsgBox21"), vbYesNo + vbInformation, question("MsgBox13_2"), vbYes);
    click(desk, "cmdok");
    return loadedWindow("frmcodigo_rapido");
}

void sellCode(Tour &tour)
{
    tour.chapter("A customer walks in: registration, photo, a code paid before, receipt, label");
    const qsizetype printed = tour.printouts().size();
    Form &window = customerWithCode(tour, "Tomás Vidal", true);
    const QString code = control<QLabel>(window, "lblcodigo").text().section(' ', 1).rightJustified(12, '0');
    replaceText(control(window, "txtvalor_disponível"), "20");
    click(window, "chkimprimir_etiqueta");
    tour.picture(window, "frmcodigo_rapido-prepaid");
    tour.expect("after the discount", control<QLabel>(window, "lbltotal_final").text(), "R$ 18,00");

    tour.attendant().expect(text("MsgBox13") + "R$ 20,00" + text("MsgBox13_3") + "R$ 18,00" + text("MsgBox13_4") +
                                "\nTOMÁS VIDAL ? ",
                            vbYesNo + vbInformation, text("MsgBox1_2"), vbYes);
    tour.attendant().expectNotice(text("MsgBox14"), text("MsgBox1_2"), [&tour] {
        // Runs while the sale waits for the window that asks where the label goes.
        QTimer::singleShot(0, QCoreApplication::instance(), [&tour] {
            Form &labels = loadedWindow("frmetiquetas");
            pickEntry(control<QComboBox>(labels, "cmbcoluna"), "2");
            pickEntry(control<QComboBox>(labels, "cmblinha"), "4");
            tour.picture(labels, "frmetiquetas");
            click(labels, "cmdok");
        });
    });
    click(window, "cmdfinalizar");
    tour.expect("code",
                tour.row("Select Status,Valor_Disponivel,Tipo_Codigo,Vinculado,Vendido from Codigo_Acesso Where "
                         "Codigo_Acesso='" +
                         code + "'"),
                "N | 20,00 | E | True | True");
    tour.expect(
        "sale",
        tour.row("Select Nome,Valor,Desconto,Motivo_Desconto from Venda_Codigos Where Codigo_Acesso='" + code + "'"),
        "TOMÁS VIDAL | 20,00 | 2,00 | PRIMEIRO CÓDIGO");
    tour.expect("link", tour.value("Select Nome from Links Where Codigo_Acesso='" + code + "'"), "TOMÁS VIDAL");
    tour.expect("printouts", QString::number(tour.printouts().size() - printed), "2");
    QStringList read;
    for (const QString &printout : tour.printouts())
        if (!printout.startsWith(textoIdioma("frmcadastro_clientes", "DispositivoSaida1")))
            read += DrawnPages(tour.path(printout), softened(300)).barcodes(1);
    tour.expect("label", read.join(' '), "CODE-128:" + code);
}

void linkCode(Tour &tour)
{
    tour.chapter("Another one pays afterwards");
    Form &window = customerWithCode(tour, "Úrsula Reis", false);
    click(window, "opttempo_indeterminado");
    click(window, "chkimprimir_etiqueta");
    click(window, "cmdaleatorio");
    tour.picture(window, "frmcodigo_rapido-postpaid");
    tour.attendant().expect(text("MsgBox10") + "Úrsula Reis?", vbYesNo + vbInformation, text("MsgBox1_2"), vbYes);
    tour.attendant().expectNotice(text("MsgBox7"), text("MsgBox1_2"));
    click(window, "cmdfinalizar");
    const QString code = tour.value("Select Codigo_Acesso from Links Where Nome='ÚRSULA REIS'");
    tour.expect("digits", QString::number(code.size()), "12");
    tour.expect("code", tour.row("Select Tipo_Codigo,Vendido from Codigo_Acesso Where Codigo_Acesso='" + code + "'"),
                "I | True");
    tour.expect("sales", tour.value("Select Count(*) from Venda_Codigos Where Nome='ÚRSULA REIS'"), "0");
}
} // namespace

void tourCodes(Tour &tour)
{
    auto &main = Forms::use<frmprincipal>();
    main.Show();
    QCoreApplication::processEvents();
    click(main, "cmdclientes");
    sellCode(tour);
    linkCode(tour);
    main.Unload();
}
