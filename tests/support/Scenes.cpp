#include "tests/support/Scenes.h"

#include "categories/frmcadastro_categoria.h"
#include "checkout/frmconfig_recibo.h"
#include "codes/frmcodigo_rapido.h"
#include "codes/frmetiquetas.h"
#include "configuration/Idiomas.h"
#include "customers/frmcadastro_clientes.h"
#include "photo/frmwebcam.h"
#include "platform/text/RegionalSettings.h"
#include "platform/window/Forms.h"
#include "products/frmcadastro_produtos.h"
#include "sale/frmvenda.h"
#include "shell/frmprincipal.h"
#include "tests/support/Controls.h"
#include "tests/support/Portrait.h"
#include "windows/OpenForms.h"
#include "windows/PageScale.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>

namespace {
const QString longName = "MARIA APARECIDA DAS GRAÇAS ALBUQUERQUE CAVALCANTI";
const QString dearProduct = "SERVIDOR DE ARQUIVOS COM GARANTIA DE TRÊS ANOS";
const QString lowProduct = "ENERGÉTICO LATA 473ML";

QLocale regionOf(const QString &language)
{
    if (language == "Ingles")
        return {QLocale::English, QLocale::UnitedStates};
    if (language == "Espanhol")
        return {QLocale::Spanish, QLocale::Argentina};
    return {QLocale::Portuguese, QLocale::Brazil};
}

/// An amount as the region writes it; `text` has a point.
QString amount(QString text)
{
    return text.replace('.', RegionalSettings::current().decimalSeparator);
}

template <typename Window>
Form &open()
{
    auto &window = Forms::use<Window>();
    window.Show();
    QCoreApplication::processEvents();
    return window;
}

Form &sale(bool big)
{
    Form &window = open<frmvenda>();
    enterText(control(window, "txtnome"), longName);
    if (big)
        putIntoCart(window, "B01", "3");
    putIntoCart(window, lowProduct, "1");
    return window;
}

Form &bigSale()
{
    Form &window = sale(true);
    pickEntry(control<QComboBox>(window, "txtmotivo"), "1");
    click(window, "chkdesconto");
    replaceText(control(window, "txtvalor_desconto"), amount("12.90"));
    replaceText(control(window, "txtvalor_pago"), amount("9999999.99"));
    return window;
}

Form &unpaidSale()
{
    Form &window = sale(false);
    click(window, "optnão_pago");
    return window;
}

Form &fullCustomer()
{
    Form &window = open<frmcadastro_clientes>();
    const QList<QPair<const char *, QString>> entries{
        {"txtnome", longName + " NETA"},
        {"txtfiliação", "TEREZINHA DE JESUS ALBUQUERQUE CAVALCANTI SILVA"},
        {"txtdocumento", "98.765.432-1 SSP/MG"},
        {"txtnick", "CIDA_DAS_GRACAS_1998"},
        {"txtrua", "AVENIDA PRESIDENTE ARTHUR BERNAR"},
        {"txtnumero", "12.345"},
        {"txtComplemento", "BLOCO C AP 12"},
        {"txtbairro", "JARDIM NOSSA SENHORA APARECIDA"},
        {"txtcidade", "SÃO SEBASTIÃO DO PARAÍSO"},
        {"txttel_residencial", "+55 35 3421-1010"},
        {"txttel_comercial", "+55 35 3421-1011"},
        {"txttel_celular", "+55 35 99912-3456"},
        {"txtmail", "maria.aparecida.das.gracas.cavalcanti@example.com"}};
    for (const auto &[box, text] : entries)
        replaceText(control(window, box), text);
    control(window, "txtdata_nascimento").setFocus();
    typeText(control(window, "txtdata_nascimento"), "07031998");
    control(window, "txtobs").setFocus();
    typeText(control(window, "txtobs"), "Avisar do torneio de sábado; a mãe autoriza até as dez horas da noite.");
    click(window, "chkobs");
    return window;
}

Form &editedCustomer()
{
    Form &window = open<frmcadastro_clientes>();
    clickCell(control<FlexGrid>(window, "tab_clientes"), 3, 1);
    click(window, "cmdeditar");
    return window;
}

Form &productList(const QString &product)
{
    Form &window = open<frmcadastro_produtos>();
    enterText(control(window, "txtdescrição_busca"), product);
    return window;
}

Form &fullProduct()
{
    Form &window = productList(lowProduct);
    for (const auto &[box, text] :
         {std::pair("txtdescrição", QString("SUCO DE CAJU CONCENTRADO 300ML COM POLPA")),
          std::pair("txtfornecedor", QString("COMPANHIA DE POLPAS DO VALE DO RIO VERDE LTDA")),
          std::pair("txtvalor_unitario", amount("9999999.99")), std::pair("txtquantidade_atual", QString("99999")),
          std::pair("txtcod_barra", QString("7891200009990")), std::pair("txtcod", QString("Z99")),
          std::pair("txtestoque_min", QString("99999"))})
        replaceText(control(window, box), text);
    return window;
}

Form &editedProduct(const QString &product)
{
    Form &window = productList(product);
    click(window, "cmdeditar");
    return window;
}

Form &categories(bool underEdit)
{
    Form &window = open<frmcadastro_categoria>();
    clickCell(control<FlexGrid>(window, "tab_categorias"), 3, 1);
    if (underEdit)
        click(window, "cmdeditar");
    else
        replaceText(control(window, "txtnome"), "SUCOS, VITAMINAS E BEBIDAS GELADAS DA ESTAÇÃO");
    return window;
}

Form &code(bool prepaid)
{
    Forms::use<frmcodigo_rapido>().Venda_ao_Cliente(longName, "CIDA");
    Form &window = open<frmcodigo_rapido>();
    if (prepaid)
        replaceText(control(window, "txtvalor_disponível"), amount("999.99"));
    else
        click(window, "opttempo_indeterminado");
    return window;
}

Form &labels(const QString &code)
{
    auto &window = Forms::use<frmetiquetas>();
    window.setEtiqueta_Em_Andamento(true);
    window.setCode(code);
    return open<frmetiquetas>();
}

Form &webcam(TestCamera &camera)
{
    camera.see(portrait({640, 480}));
    Form &window = open<frmwebcam>();
    click(window, "cmdcapturar_tela");
    return window;
}
} // namespace

Scenes::Scenes(const QString &language, const Attendant::FailureSink &sink)
    : m_cafe(regionOf(language), {.demo = true}), m_attendant(sink)
{
    m_cafe.setIni("Config_Regional", "Idioma", language + ".lng");
    m_cafe.execute("Update Clientes Set Nome='" + longName + "' Where Codigo=3");
    m_cafe.execute("Update Produtos Set Descrição='" + dearProduct + "', Quantidade='3', Valor_Unitario='" +
                   amount("3333333.33") + "' Where Codigo=2");
    m_cafe.start();
    Salvar_Escala_Impressora();
}

QStringList Scenes::languages()
{
    return {"Portugues", "Ingles", "Espanhol"};
}

QStringList Scenes::windows()
{
    return QString("frmprincipal frmvenda frmcadastro_clientes frmcadastro_produtos frmcadastro_categoria "
                   "frmcodigo_rapido frmetiquetas frmconfig_recibo frmwebcam")
        .split(' ');
}

QStringList Scenes::states()
{
    return QString("frmvenda-small frmvenda-unpaid frmvenda-locked frmcadastro_clientes-edit "
                   "frmcadastro_produtos-edit frmcadastro_produtos-reserved frmcadastro_categoria-edit "
                   "frmcodigo_rapido-postpaid frmetiquetas-unread")
        .split(' ');
}

void Scenes::play(const QString &scene, const Look &look)
{
    if (scene == "frmvenda-locked") {
        playLockedSale(look);
    } else {
        const QHash<QString, std::function<Form &()>> settings{
            {"frmprincipal", open<frmprincipal>},
            {"frmvenda", bigSale},
            {"frmvenda-small", []() -> Form & { return sale(false); }},
            {"frmvenda-unpaid", unpaidSale},
            {"frmcadastro_clientes", fullCustomer},
            {"frmcadastro_clientes-edit", editedCustomer},
            {"frmcadastro_produtos", fullProduct},
            {"frmcadastro_produtos-edit", []() -> Form & { return editedProduct(lowProduct); }},
            {"frmcadastro_produtos-reserved", [this]() -> Form & { return editedProduct(reservedProduct()); }},
            {"frmcadastro_categoria", []() -> Form & { return categories(false); }},
            {"frmcadastro_categoria-edit", []() -> Form & { return categories(true); }},
            {"frmcodigo_rapido", []() -> Form & { return code(true); }},
            {"frmcodigo_rapido-postpaid", []() -> Form & { return code(false); }},
            {"frmetiquetas", []() -> Form & { return labels("42"); }},
            {"frmetiquetas-unread", []() -> Form & { return labels("casal"); }},
            {"frmconfig_recibo", open<frmconfig_recibo>},
            {"frmwebcam", [this]() -> Form & { return webcam(m_machine.installCamera()); }}};
        look(settings[scene]());
    }
    m_attendant.finish();
    Descarregar_Forms();
    QCoreApplication::processEvents();
}

QString Scenes::reservedProduct()
{
    return m_cafe.value("Select Descrição from Produtos Where Codigo=1");
}

/// A sale is locked while its question is open.
void Scenes::playLockedSale(const Look &look)
{
    Form &window = sale(false);
    replaceText(control(window, "txtvalor_pago"), "50");
    const QString total = control<QLabel>(window, "lbltotal_final").text();
    m_attendant.expect(textoCarregado("frmvenda", "String5") + total + textoCarregado("frmvenda", "String5_2") + "\n" +
                           longName + "?",
                       vbYesNo + vbInformation, "Atenção", vbNo, [&] { look(window); });
    click(window, "cmdfinalizar");
}
