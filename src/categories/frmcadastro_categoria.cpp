#include "categories/frmcadastro_categoria.h"

#include "categories/CategoryEditing.h"
#include "categories/CategoryList.h"
#include "categories/CategoryPrintouts.h"
#include "categories/CategoryRemoval.h"
#include "categories/CategoryTexts.h"
#include "categories/DefaultCategory.h"
#include "data/Acesso_BD.h"
#include "platform/window/BoxKeys.h"
#include "ui_frmcadastro_categoria.h"

frmcadastro_categoria::frmcadastro_categoria() : ui(std::make_unique<Ui::frmcadastro_categoria>())
{
    ui->setupUi(this);
    m_list = std::make_unique<CategoryList>(*ui, m_state);
    m_editing = std::make_unique<CategoryEditing>(*ui, m_state, *m_list);

    enterMovesTo(ui->txtnome, ui->chkpadrao);
    connect(ui->cmdadicionar, &QPushButton::clicked, this, [this] { m_editing->cmdadicionar_Click(); });
    connect(ui->cmdeditar, &QPushButton::clicked, this, [this] { m_editing->cmdeditar_Click(); });
    connect(ui->cmdremover, &QPushButton::clicked, this, &frmcadastro_categoria::cmdremover_Click);
    connect(ui->cmdimprimir, &QPushButton::clicked, this,
            [this] { printCategories(*ui->tab_categorias, ui->lbltotal_categorias->Caption()); });
    connect(ui->cmdsalvar, &QPushButton::clicked, this,
            [this] { saveCategories(*ui->tab_categorias, ui->lbltotal_categorias->Caption()); });
    connect(ui->cmdsair, &QPushButton::clicked, this, &frmcadastro_categoria::Unload);
}

frmcadastro_categoria::~frmcadastro_categoria() = default;

void frmcadastro_categoria::Form_Load()
{
    Sempre_No_Topo(*this, true);
    m_state.LinhaSelecionada = 0;
    m_state.LinhaEditada = 0;
    Abrir_Banco_Principal();
    m_state.CategoriaPadrao = usableDefaultCategory(categoryTexts.loaded("String7")).toUpper();
    storeDefaultCategory(m_state.CategoriaPadrao);
    m_list->load();
}

void frmcadastro_categoria::cmdremover_Click()
{
    if (removeCategories(*ui->tab_categorias, m_state))
        Form_Load();
}
