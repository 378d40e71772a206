#include "products/ProductList.h"

#include "configuration/Globais.h"
#include "data/Queries.h"
#include "platform/base/Err.h"
#include "platform/base/LongWork.h"
#include "platform/text/Numbers.h"
#include "platform/window/BoxKeys.h"
#include "platform/window/Pictures.h"
#include "products/LowStock.h"
#include "products/ProductColumns.h"
#include "products/ProductRecord.h"
#include "products/ProductState.h"
#include "products/ProductTexts.h"
#include "ui_frmcadastro_produtos.h"
#include "windows/ListTotal.h"

#include <array>

namespace {
constexpr QSize searchPictureSize(20, 20);
const QString none = "-";
const QString service = "X";

struct ListedField
{
    QString name;
    int column;
};

QString menuText(bool inMenu)
{
    return productTexts.loaded(inMenu ? "String6" : "String5");
}

/// Headings of the list. The last two, of date and time, fall away with their columns.
QString headings()
{
    constexpr int headingCount = 12;
    QStringList texts{"<       "};
    for (int number = 1; number <= headingCount; ++number)
        texts += productTexts.text("tab_produtos" + QString::number(number));
    texts[ProductColumn::Price] += SimboloMoeda + "  ";
    return texts.join("|<");
}
} // namespace

ProductList::ProductList(Ui::frmcadastro_produtos &window, ProductState &state) : ui(window), m_state(state)
{
    ui.cmdbuscar->setIconSize(searchPictureSize);
    ui.cmdbuscar->setIcon(bundledPicture("imgprocura", searchPictureSize));
    connect(ui.cmdbuscar, &QPushButton::clicked, this, &ProductList::cmdbuscar_Click);
    connect(ui.txtdescrição_busca, &TextBox::KeyPress, this, [this](int &KeyAscii) {
        if (KeyAscii == vbKeyReturn)
            cmdbuscar_Click();
    });
    caretToEndOnChange(ui.txtdescrição_busca);
    connect(ui.tab_produtos, &FlexGrid::Click, this, &ProductList::tab_produtos_Click);
    connect(ui.tab_produtos, &FlexGrid::SelChange, this, &ProductList::tab_produtos_Click);
    ui.tab_produtos->setAttention([this](int row, int column) {
        const QString minimum = ui.tab_produtos->TextMatrix(row, ProductColumn::MinimumStock);
        return column == ProductColumn::Stock && minimum != none &&
               isLow(ui.tab_produtos->TextMatrix(row, column), minimum);
    });
}

void ProductList::load()
{
    FlexGrid &grid = *ui.tab_produtos;
    grid.inOneStep([&] {
        grid.Clear();
        grid.setFormatString(headings());
        grid.setCols(ProductColumn::Count);
        grid.setRows(1);
        m_state.Total_Produtos = 0;

        fill();
        grid.setRows(m_state.Total_Produtos + 1);
        grid.setRow(0);
    });
    m_state.LinhaSelecionada = 0;
    showCount();
}

void ProductList::fill()
{
    const LongWork work;
    FlexGrid &grid = *ui.tab_produtos;
    // Asked once, not for every row.
    const QString inMenu = menuText(true);
    const QString notInMenu = menuText(false);
    const std::array texts{
        ListedField{"Codigo", ProductColumn::Codigo},        ListedField{"Descrição", ProductColumn::Description},
        ListedField{"Categoria", ProductColumn::Category},   ListedField{"Cod", ProductColumn::Code},
        ListedField{"Valor_Unitario", ProductColumn::Price}, ListedField{"Fornecedor", ProductColumn::Supplier},
        ListedField{"Cod_Barra", ProductColumn::Barcode}};
    const std::array stocks{ListedField{"Quantidade", ProductColumn::Stock},
                            ListedField{"Estoque_Min", ProductColumn::MinimumStock}};
    const QString servico = "Servico";
    const QString cardapio = "Cardapio";
    forEachRow("Select * from Produtos Order By Descrição", [&](const Recordset &rs) {
        LongWork::goOn();
        const auto isTrue = [&rs](const QString &field) {
            return !rs.Fields(field).isNull() && rs.Fields(field).boolean();
        };
        const int row = ++m_state.Total_Produtos;
        // In leaps, because each growth is told to the view.
        if (row >= grid.Rows())
            grid.setRows(2 * row);
        const auto show = [&](int column, const auto &text) {
            OnErrorResumeNext([&] { grid.setTextMatrix(row, column, text()); });
        };
        for (const ListedField &each : texts)
            show(each.column, [&] { return rs.Fields(each.name).text(); });
        bool isService = false;
        OnErrorResumeNext([&] { isService = isTrue(servico); });
        show(ProductColumn::Service, [&] { return isService ? service : none; });
        for (const ListedField &each : stocks)
            show(each.column, [&] { return isService ? none : rs.Fields(each.name).text(); });
        show(ProductColumn::Menu, [&] { return isTrue(cardapio) ? inMenu : notInMenu; });
    });
}

void ProductList::showCount()
{
    showTotal(productTexts, m_state.Total_Produtos, {ui.lbltotal_produtos, ui.Lblsombraprodutos});
}

ProductRecord ProductList::product(int row) const
{
    const auto text = [&](int column) { return ui.tab_produtos->TextMatrix(row, column); };
    ProductRecord product;
    product.Descrição = text(ProductColumn::Description);
    product.Categoria = text(ProductColumn::Category);
    product.Cod = text(ProductColumn::Code);
    product.Servico = text(ProductColumn::Service) != none;
    product.Quantidade = text(ProductColumn::Stock);
    product.Estoque_Min = text(ProductColumn::MinimumStock);
    product.Valor_Unitario = text(ProductColumn::Price);
    product.Fornecedor = text(ProductColumn::Supplier);
    product.Cardapio = text(ProductColumn::Menu) == menuText(true);
    product.Cod_Barra = text(ProductColumn::Barcode);
    return product;
}

void ProductList::showProduct(int row, const ProductRecord &product)
{
    const auto show = [&](int column, const QString &text) { ui.tab_produtos->setTextMatrix(row, column, text); };
    show(ProductColumn::Description, product.Descrição);
    show(ProductColumn::Category, product.Categoria);
    show(ProductColumn::Code, product.Cod);
    show(ProductColumn::Service, product.Servico ? service : none);
    show(ProductColumn::Stock, product.Servico ? none : product.Quantidade);
    show(ProductColumn::MinimumStock, product.Servico ? none : product.Estoque_Min);
    show(ProductColumn::Price, product.Valor_Unitario);
    show(ProductColumn::Menu, menuText(product.Cardapio));
    show(ProductColumn::Barcode, product.Cod_Barra);
}

void ProductList::addProduct(double codigo, const ProductRecord &product)
{
    FlexGrid &grid = *ui.tab_produtos;
    const int row = grid.Rows();
    grid.inOneStep([&] {
        grid.setRows(row + 1);
        grid.setTextMatrix(row, ProductColumn::Codigo, Cstr(codigo));
        grid.setTextMatrix(row, ProductColumn::Supplier, product.Fornecedor);
        showProduct(row, product);
    });
    m_state.Total_Produtos = row;
    showCount();
}

void ProductList::showMenuFlag(bool inMenu)
{
    FlexGrid &grid = *ui.tab_produtos;
    for (int row = 1; row < grid.Rows(); ++row)
        grid.setTextMatrix(row, ProductColumn::Menu, menuText(inMenu));
}

bool ProductList::Buscar_Produto(const QString &termo)
{
    FlexGrid &grid = *ui.tab_produtos;
    const int found = grid.findPrefix(termo, 1, {ProductColumn::Description});
    if (found == 0)
        return false;
    grid.goToRow(found, ProductColumn::Description);
    tab_produtos_Click();
    return true;
}

void ProductList::cmdbuscar_Click()
{
    TextBox &box = *ui.txtdescrição_busca;
    if (!box.text().isEmpty())
        box.setText(box.text().toUpper());
    if (box.text().isEmpty() || !Buscar_Produto(box.text()))
        productTexts.notice("MsgBox10");
}

void ProductList::tab_produtos_Click()
{
    const FlexGrid &grid = *ui.tab_produtos;
    m_state.LinhaSelecionada = grid.Row();
    if (grid.Row() > 0)
        ui.txtdescrição_busca->setText(grid.TextMatrix(grid.Row(), ProductColumn::Description));
}
