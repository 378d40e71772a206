#include "customers/CustomerList.h"

#include "customers/Customer.h"
#include "customers/CustomerColumns.h"
#include "customers/CustomerState.h"
#include "customers/CustomerTexts.h"
#include "data/Acesso_BD.h"
#include "data/Queries.h"
#include "platform/base/Err.h"
#include "platform/base/LongWork.h"
#include "platform/text/Numbers.h"
#include "platform/window/Forms.h"
#include "platform/window/KeyCodes.h"
#include "platform/window/Pictures.h"
#include "ui_frmcadastro_clientes.h"

#include <array>
#include <limits>
#include <utility>

namespace {
constexpr QSize arrowSize(12, 12);
/// Fields that the list is sorted by, column by column.
const std::array<QString, 20> CamposOrdenacao{"codigo", "Nome", "Nick", "Grupo", "Data_Nasc", "Obs", "Autorizado"};

QString authorisation(bool authorised)
{
    return customerTexts.loaded(authorised ? "String3" : "String4");
}
} // namespace

CustomerList::CustomerList(Ui::frmcadastro_clientes &window, CustomerState &state)
    : ui(window), m_state(state), m_next(*window.cmdbusca)
{
    connect(ui.cmdordenar, &QPushButton::clicked, this, &CustomerList::cmdordenar_Click);
    connect(ui.cmdbusca, &QPushButton::clicked, this, &CustomerList::cmdbusca_Click);
    connect(ui.txtnome_busca, &TextBox::KeyPress, this, [this](int &KeyAscii) {
        if (KeyAscii != vbKeyReturn)
            return;
        cmdbusca_Click();
        m_next.setGoesOn(false);
    });
    connect(ui.tab_clientes, &FlexGrid::Click, this, &CustomerList::tab_clientes_Click);
    connect(ui.tab_clientes, &FlexGrid::SelChange, this, &CustomerList::tab_clientes_SelChange);
}

void CustomerList::Ordenar_Tabela(const QString &campo)
{
    ui.tab_clientes->inOneStep([&] { load(campo); });
}

void CustomerList::load(const QString &campo)
{
    FlexGrid &grid = *ui.tab_clientes;
    const LongWork work;
    OnErrorGoToEnd([&] {
        Abrir_Banco_Principal();
        grid.Clear();
        QString format = "<          ";
        for (const char *key :
             {"tab_clientes1", "tab_clientes2", "tab_clientes4", "tab_clientes6", "tab_clientes17", "tab_clientes19"})
            format += "|<" + customerTexts.text(key);
        grid.setFormatString(format);
        grid.setCols(CustomerColumn::Count);
        grid.setRows(1);

        int count = 0;
        OrRaise::readFirstRow("Select Count(*) from Clientes",
                              [&](const Recordset &rs) { count = static_cast<int>(rs.Fields(0).number()); });
        bool anyone = false;
        OrRaise::forEachRow("Select Codigo,Nome,Nick,Grupo,Data_Nasc,Obs,Autorizado from Clientes Order By " + campo,
                            [&](const Recordset &rs) {
                                if (!std::exchange(anyone, true)) {
                                    m_state.TotalClientes = 0;
                                    grid.setRows(count + 1);
                                }
                                showRow(rs);
                            });
        if (anyone)
            return showCount(m_state.TotalClientes == 1);
        // The number of an emptied list is not reset, and that stays: the next customer is counted on top of it.
        for (Label *label : {ui.lbltotal_clientes, ui.Lblsombraclientes})
            label->setCaption(customerTexts.loaded("String7"));
    });
    Fechar_Recordsets_Globais();
}

void CustomerList::countOne()
{
    if (m_state.TotalClientes == std::numeric_limits<qint16>::max())
        throw RunTimeError(ErrorNumber::Overflow, "More customers than the list can count");
    ++m_state.TotalClientes;
}

void CustomerList::showRow(const Recordset &rs)
{
    FlexGrid &grid = *ui.tab_clientes;
    countOne();
    for (int column = 0; column < CustomerColumn::Authorised; ++column)
        grid.setTextMatrix(m_state.TotalClientes, column, rs.Fields(column).text());
    const FieldValue authorised = rs.Fields(CustomerColumn::Authorised);
    grid.setTextMatrix(m_state.TotalClientes, CustomerColumn::Authorised,
                       authorisation(!authorised.isNull() && authorised.boolean()));
    DoEvents();
    LongWork::goOn();
}

void CustomerList::showCount(bool single)
{
    const QString count = QString::number(m_state.TotalClientes) + customerTexts.loaded(single ? "String5" : "String6");
    ui.lbltotal_clientes->setCaption(count);
    ui.Lblsombraclientes->setCaption(count);
}

void CustomerList::showCustomer(int row, const Customer &customer)
{
    FlexGrid &grid = *ui.tab_clientes;
    const Customer stored = customer.stored();
    grid.setTextMatrix(row, CustomerColumn::Name, stored.Nome);
    grid.setTextMatrix(row, CustomerColumn::Nick, stored.Nick);
    grid.setTextMatrix(row, CustomerColumn::Group, stored.Grupo);
    grid.setTextMatrix(row, CustomerColumn::BirthDate, stored.Data_Nasc);
    grid.setTextMatrix(row, CustomerColumn::Note, stored.Obs);
    grid.setTextMatrix(row, CustomerColumn::Authorised, authorisation(stored.Autorizado));
}

void CustomerList::addCustomer(double codigo, const Customer &customer)
{
    FlexGrid &grid = *ui.tab_clientes;
    grid.inOneStep([&] {
        grid.setRows(grid.Rows() + 1);
        grid.setTextMatrix(grid.Rows() - 1, CustomerColumn::Codigo, Cstr(codigo));
        showCustomer(grid.Rows() - 1, customer);
    });
}

void CustomerList::countAdded()
{
    countOne();
    showCount(ui.tab_clientes->Rows() == 2);
}

void CustomerList::enableButtons()
{
    const bool anyone = ui.tab_clientes->Rows() >= 2;
    for (QPushButton *button : {ui.cmdordenar, ui.cmdexcluir, ui.cmdsalvar, ui.cmdimprimir})
        button->setEnabled(anyone);
}

void CustomerList::cmdordenar_Click()
{
    Ordenar_Tabela(CamposOrdenacao.at(m_state.ColunaClicada));
    FlexGrid &grid = *ui.tab_clientes;
    grid.setRow(0);
    grid.setCol(m_state.ColunaClicada);
    m_state.ColunaOrdenada = m_state.ColunaClicada;
    grid.setCellPicture(bundledPicture("seta_acima", arrowSize));
}

bool CustomerList::Buscar_Cliente(const QString &texto, int inicio)
{
    return selectCustomer(*ui.tab_clientes, texto, inicio, CustomerColumn::Codigo, [this] { tab_clientes_Click(); });
}

void CustomerList::Localizar(const QString &texto)
{
    FlexGrid &grid = *ui.tab_clientes;
    for (int row = 1; row < grid.Rows(); ++row)
        if (grid.TextMatrix(row, CustomerColumn::Name).toUpper() == texto.toUpper()) {
            grid.setRow(row);
            grid.setTopRow(row);
            return;
        }
}

void CustomerList::cmdbusca_Click()
{
    if (ui.txtnome_busca->text().isEmpty()) {
        customerTexts.notice("MsgBox2");
        ui.txtnome_busca->setFocus();
        return;
    }
    ui.txtnome_busca->setText(ui.txtnome_busca->text().toUpper());
    // The box holds the whole name of the last match by now, so that the next one must begin with all of it. It stays.
    const bool found = Buscar_Cliente(ui.txtnome_busca->text(), m_next.goesOn() ? ui.tab_clientes->Row() + 1 : 1);
    m_next.setGoesOn(found);
    if (!found)
        customerTexts.notice("MsgBox2");
}

void CustomerList::tab_clientes_Click()
{
    const FlexGrid &grid = *ui.tab_clientes;
    if (grid.Row() < 1)
        return;
    ui.txtnome_busca->setText(grid.TextMatrix(grid.Row(), CustomerColumn::Name));
    pick(grid.Row());
    m_state.ColunaClicada = static_cast<quint8>(grid.Col());
}

void CustomerList::pick(int row)
{
    m_state.LinhaSelecionada = row;
    ui.tab_clientes->setPickedRow(row);
}

void CustomerList::tab_clientes_SelChange()
{
    if (!ui.tab_clientes->RowIsVisible(ui.tab_clientes->RowSel()))
        ui.tab_clientes->setTopRow(ui.tab_clientes->RowSel());
}
