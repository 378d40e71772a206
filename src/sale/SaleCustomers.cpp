#include "sale/SaleCustomers.h"

#include "checkout/SaleLock.h"
#include "customers/CustomerColumns.h"
#include "data/Acesso_BD.h"
#include "data/Queries.h"
#include "platform/base/Err.h"
#include "platform/base/LongWork.h"
#include "platform/window/Forms.h"
#include "platform/window/KeyCodes.h"
#include "sale/SaleState.h"
#include "sale/SaleTexts.h"
#include "ui_frmvenda.h"

#include <QKeyEvent>

#include <array>

SaleCustomers::SaleCustomers(Ui::frmvenda &window, SaleState &state, const SaleLock &lock)
    : ui(window), m_state(state), m_next(*window.cmdbusca)
{
    ui.txtnome->installEventFilter(this);

    connect(ui.txtnome, &TextBox::Change, this, [this] {
        DoEvents(WaitingInput::Stays);
        ui.txtnome->focusAtEnd();
    });
    lock.connect(ui.txtnome, &TextBox::KeyPress, this, [this](int &KeyAscii) {
        if (KeyAscii == vbKeyReturn)
            cmdbusca_Click();
        else
            m_next.setGoesOn(false);
    });
    lock.connect(ui.cmdbusca, &QPushButton::clicked, this, [this] { cmdbusca_Click(); });
    lock.connect(ui.tab_clientes, &FlexGrid::Click, this, [this] { tab_clientes_Click(); });
    lock.connect(ui.tab_clientes, &FlexGrid::SelChange, this, [this] {
        // While the window loads nobody is picked: its activation does that.
        if (ui.tab_clientes->isVisible())
            tab_clientes_SelChange();
    });
    connect(ui.optavulsa, &QRadioButton::clicked, this, [this] { ui.imgfoto->showNobody(); });
    lock.connect(ui.optavulsa, &QRadioButton::clicked, this, [this] { optavulsa_Click(); });
    lock.connect(ui.optcliente, &QRadioButton::clicked, this, [this] { optcliente_Click(); });
}

void SaleCustomers::Listar_Clientes()
{
    ui.tab_clientes->inOneStep([this] { fill(); });
}

void SaleCustomers::fill()
{
    FlexGrid &grid = *ui.tab_clientes;
    const LongWork work;
    const QString picked = grid.Row() > 0 ? grid.TextMatrix(grid.Row(), CustomerColumn::Codigo) : QString();
    grid.Clear();
    grid.setFormatString("<          |<" + saleTexts.text("tab_clientes1") + "|<" + saleTexts.text("tab_clientes2"));
    grid.setCols(3);
    grid.setRows(1);

    int count = 0;
    readFirstRow("Select Count(*) from Clientes",
                 [&](const Recordset &rs) { count = static_cast<int>(rs.Fields(0).number()); });
    const std::array fields{std::pair(CustomerColumn::Codigo, QString("Codigo")),
                            std::pair(CustomerColumn::Name, QString("Nome")),
                            std::pair(CustomerColumn::Nick, QString("Nick"))};
    // Another terminal may have registered a customer since the count; the list holds those that were counted.
    int row = 0;
    forEachRow("Select * from Clientes Order By Nome", [&](const Recordset &rs) {
        if (++row == 1)
            grid.setRows(count + 1);
        if (row > count)
            return;
        LongWork::goOn();
        for (const auto &each : fields)
            OnErrorResumeNext([&] { grid.setTextMatrix(row, each.first, rs.Fields(each.second).text()); });
        // A visit to the customers' window leaves the buyer the same person, under another name, too.
        if (grid.TextMatrix(row, CustomerColumn::Codigo) == picked)
            grid.setRow(row);
    });
}

bool SaleCustomers::Buscar_Cliente(const QString &termo, int inicio)
{
    return selectCustomer(*ui.tab_clientes, termo, inicio, CustomerColumn::Name, [this] { tab_clientes_Click(); });
}

void SaleCustomers::cmdbusca_Click()
{
    if (ui.txtnome->text().isEmpty()) {
        saleTexts.notice("MsgBox6");
        return;
    }
    ui.txtnome->setText(ui.txtnome->text().toUpper());
    // Once a search has found someone, it goes on until another name is typed.
    const bool goesOn = m_next.goesOn();
    if (!goesOn)
        Ultima_Busca = ui.txtnome->text();
    const bool found = Buscar_Cliente(Ultima_Busca, goesOn ? ui.tab_clientes->Row() + 1 : 1);
    if (!goesOn)
        m_next.setGoesOn(found);
    if (!found)
        saleTexts.notice("MsgBox6");
}

void SaleCustomers::tab_clientes_Click()
{
    FlexGrid &grid = *ui.tab_clientes;
    // The headings of an empty list are no customer.
    if (grid.Row() == 0)
        return;
    m_state.Nome_Cliente = grid.TextMatrix(grid.Row(), CustomerColumn::Name);
    m_state.Nick_Cliente = grid.TextMatrix(grid.Row(), CustomerColumn::Nick);
    ui.txtnome->setText(m_state.Nome_Cliente);
    if (!grid.RowIsVisible(grid.RowSel()))
        grid.setTopRow(grid.RowSel());
}

void SaleCustomers::tab_clientes_SelChange()
{
    tab_clientes_Click();
    if (ui.tab_clientes->Row() > 0)
        ExibirFoto(m_state.Nome_Cliente);
}

void SaleCustomers::takeCurrent()
{
    tab_clientes_Click();
    tab_clientes_SelChange();
}

void SaleCustomers::ExibirFoto(const QString &nome)
{
    QString path;
    readFirstRow("Select CaminhoFoto From Clientes Where Nome='" + nome + "'",
                 [&](const Recordset &rs) { path = rs.Fields("CaminhoFoto").text(); });
    ui.imgfoto->showStored(path);
}

void SaleCustomers::optavulsa_Click()
{
    m_state.Avulsa_Venda = yesFlag;
    setGridEnabled(false);
    ui.optnão_pago->setEnabled(false);
    // A walk-in buyer cannot owe: the debt of an earlier choice goes, as if the attendant had chosen "paid".
    if (!ui.optpago->isChecked())
        ui.optpago->click();
}

void SaleCustomers::optcliente_Click()
{
    m_state.Avulsa_Venda = 0;
    setGridEnabled(true);
    ui.optpago->setEnabled(true);
    ui.optnão_pago->setEnabled(true);
}

void SaleCustomers::setGridEnabled(bool enabled)
{
    ui.txtnome->setEnabled(enabled);
    ui.cmdbusca->setEnabled(enabled);
    ui.tab_clientes->setEnabled(enabled);
}

bool SaleCustomers::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ui.txtnome && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        const int row = ui.tab_clientes->Row() + (key == Qt::Key_Down ? 1 : -1);
        if (key == Qt::Key_Down || key == Qt::Key_Up) {
            if (row >= 1 && row < ui.tab_clientes->Rows())
                ui.tab_clientes->setRow(row);
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
