#include "customers/frmcadastro_clientes.h"

#include "customers/CustomerEditing.h"
#include "customers/CustomerForm.h"
#include "customers/CustomerList.h"
#include "customers/CustomerPhoto.h"
#include "customers/CustomerPrintouts.h"
#include "customers/CustomerRegistration.h"
#include "customers/CustomerRemoval.h"
#include "data/Acesso_BD.h"
#include "platform/base/Err.h"
#include "ui_frmcadastro_clientes.h"

frmcadastro_clientes::frmcadastro_clientes() : ui(std::make_unique<Ui::frmcadastro_clientes>())
{
    ui->setupUi(this);
    m_form = std::make_unique<CustomerForm>(*ui);
    m_photo = std::make_unique<CustomerPhoto>(*this, *ui);
    m_list = std::make_unique<CustomerList>(*ui, m_state);
    m_registration = std::make_unique<CustomerRegistration>(*this, *m_form, *m_list, *m_photo);
    m_editing = std::make_unique<CustomerEditing>(*ui, m_state, *m_form, *m_list, *m_photo);

    connect(ui->cmdok, &QPushButton::clicked, this, [this] { m_registration->cmdok_Click(); });
    connect(ui->cmdeditar, &QPushButton::clicked, this, &frmcadastro_clientes::Editar_Cliente);
    connect(ui->cmdexcluir, &QPushButton::clicked, this, &frmcadastro_clientes::cmdexcluir_Click);
    connect(ui->cmdimprimir, &QPushButton::clicked, this,
            [this] { printCustomers(*ui->tab_clientes, m_state.TotalClientes); });
    connect(ui->cmdsalvar, &QPushButton::clicked, this,
            [this] { saveCustomers(*ui->tab_clientes, m_state.TotalClientes); });
    connect(ui->cmdsair, &QPushButton::clicked, this, &frmcadastro_clientes::Unload);
}

frmcadastro_clientes::~frmcadastro_clientes() = default;

void frmcadastro_clientes::Form_Load()
{
    m_state.LinhaEditada = 0;
    m_list->pick(0);
    Sempre_No_Topo(*this, true);
    m_form->maskPostalCode();
    m_state.ColunaOrdenada = 0;
    if (ui->tab_clientes->Rows() >= 2)
        m_list->Ordenar_Tabela("Codigo");
    m_list->enableButtons();
    // What fails here leads to the nick.
    OnErrorGoToEnd([this] {
        Abrir_Banco_Principal();
        m_form->selectFirstState();
        m_form->Selecionar_Grupo_Padrao();
        m_form->takeTownOfCafe();
        if (ui->tab_clientes->Rows() >= 2)
            m_list->pick(1);
    });
    m_form->Nick_Sequencial();
    Fechar_Recordsets_Globais();
    m_photo->forget();
}

void frmcadastro_clientes::Editar_Cliente()
{
    m_editing->cmdeditar_Click();
}

void frmcadastro_clientes::EditarCliente(double codigo)
{
    m_editing->EditarCliente(codigo);
}

void frmcadastro_clientes::Localizar(const QString &texto)
{
    m_list->Localizar(texto);
}

void frmcadastro_clientes::cmdexcluir_Click()
{
    if (removeCustomers(*this, *ui->tab_clientes, m_state)) {
        m_form->clear();
        Form_Load();
    }
    setMousePointer(vbDefault);
}
