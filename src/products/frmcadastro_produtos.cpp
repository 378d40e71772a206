#include "products/frmcadastro_produtos.h"

#include "categories/DefaultCategory.h"
#include "categories/frmcadastro_categoria.h"
#include "data/Acesso_BD.h"
#include "platform/window/Forms.h"
#include "products/ProductEditing.h"
#include "products/ProductForm.h"
#include "products/ProductList.h"
#include "products/ProductMenu.h"
#include "products/ProductPrintouts.h"
#include "products/ProductRegistration.h"
#include "products/ProductRemoval.h"
#include "products/ProductTexts.h"
#include "ui_frmcadastro_produtos.h"
#include "windows/OpenForms.h"

frmcadastro_produtos::frmcadastro_produtos() : ui(std::make_unique<Ui::frmcadastro_produtos>())
{
    ui->setupUi(this);
    m_form = std::make_unique<ProductForm>(*ui);
    m_list = std::make_unique<ProductList>(*ui, m_state);
    m_editing = std::make_unique<ProductEditing>(*ui, m_state, *m_form, *m_list);

    connect(ui->cmdadicionar, &QPushButton::clicked, this, [this] { registerProduct(*ui, *m_form, *m_list); });
    connect(ui->cmdeditar, &QPushButton::clicked, this, [this] { m_editing->cmdeditar_Click(); });
    connect(ui->cmdremover, &QPushButton::clicked, this, &frmcadastro_produtos::cmdremover_Click);
    connect(ui->cmdcategoria, &QPushButton::clicked, this, &frmcadastro_produtos::cmdcategoria_Click);
    connect(ui->cmdcardapio_sim, &QPushButton::clicked, this, [this] { setMenuFlags(*m_list, true); });
    connect(ui->cmdcardapio_nao, &QPushButton::clicked, this, [this] { setMenuFlags(*m_list, false); });
    connect(ui->cmdimprimir, &QPushButton::clicked, this, [this] {
        printProducts(*this, *ui->tab_produtos, m_state.Total_Produtos, ui->lbltotal_produtos->Caption());
    });
    connect(ui->cmdsalvar, &QPushButton::clicked, this,
            [this] { saveProducts(*ui->tab_produtos, ui->lbltotal_produtos->Caption()); });
    connect(ui->cmdsair, &QPushButton::clicked, this, &frmcadastro_produtos::Unload);
}

frmcadastro_produtos::~frmcadastro_produtos() = default;

void frmcadastro_produtos::Form_Load()
{
    Sempre_No_Topo(*this, true);
    m_state.LinhaEditada = 0;
    ui->cmbcardapio->clear();
    ui->cmbcardapio->addItems({productTexts.loaded("String6"), productTexts.loaded("String5")});
    Abrir_Banco_Principal();
    m_list->load();
    const QString standard = usableDefaultCategory(productTexts.loaded("String15"));
    storeDefaultCategory(standard);
    m_form->listCategories(standard);
    ui->cmdcategoria->setEnabled(true);
    ui->cmbcardapio->setCurrentIndex(0);
}

void frmcadastro_produtos::Form_Activate()
{
    m_form->fillPrice();
}

void frmcadastro_produtos::cmdremover_Click()
{
    if (!removeProducts(*this, *ui->tab_produtos, m_state))
        return;
    Form_Load();
    productTexts.notice("MsgBox25");
    setMousePointer(vbDefault);
}

void frmcadastro_produtos::cmdcategoria_Click()
{
    showAndWait(Forms::use<frmcadastro_categoria>());
    // This window may have gone with the program while it waited.
    if (isLoaded())
        Form_Load();
}
