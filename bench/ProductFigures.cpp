#include "bench/ProductFigures.h"

#include "bench/BareFile.h"
#include "bench/BareList.h"
#include "bench/Figures.h"
#include "bench/Program.h"
#include "bench/WorkingCopy.h"
#include "cafe/Cafe.h"
#include "configuration/Globais.h"
#include "platform/window/ComboBox.h"
#include "platform/window/FlexGrid.h"
#include "platform/window/Forms.h"
#include "products/ProductColumns.h"
#include "products/ProductPrintouts.h"
#include "products/ProductTexts.h"
#include "products/frmcadastro_produtos.h"
#include "tests/support/Controls.h"
#include "tests/support/FakeMachine.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include <memory>
#include <string>
#include <vector>

namespace {
constexpr int manyProducts = 32767;
constexpr int printedProducts = 5000;
constexpr int productsOnPage = 12;

/// Fills the catalogue up, and copies the sales into the table that only some data files hold.
void enlarge(const QString &cafe)
{
    BareFile file(dataFileOf(cafe));
    file.write("PRAGMA cache_size=-400000; BEGIN");
    for (std::string sql : file.read("SELECT sql FROM sqlite_master WHERE tbl_name='Venda_Produtos' AND sql <> ''")) {
        for (std::size_t at = 0; (at = sql.find("Venda_Produtos", at)) != std::string::npos; at += 17)
            sql.replace(at, 14, "Venda_ProdutosOti");
        file.write(sql);
    }
    file.write(
        "INSERT INTO Venda_ProdutosOti SELECT * FROM Venda_Produtos;"
        "WITH RECURSIVE Next(Code) AS (SELECT Max(Codigo)+1 FROM Produtos UNION ALL SELECT Code+1 FROM Next "
        "WHERE Code<" +
        std::to_string(manyProducts) +
        ") INSERT INTO Produtos (Codigo,Data,Hora,\"Descrição\",Quantidade,Estoque_Min,Valor_Unitario,Fornecedor,"
        "Cod,Servico,Cardapio,Categoria,Cod_Barra) SELECT Code,'15/03/2024','14:30:05','PRODUTO '||(Code*7919%"
        "100000)||' DE TESTE','10','2','3,50','FORNECEDOR '||(Code%97),'---',0,1,'DIVERSOS','-------------' "
        "FROM Next; COMMIT");
}

Quartiles ratioOfLoading(BareFile &file)
{
    BareStatement products(file, "SELECT * FROM Produtos");
    std::unique_ptr<BareList> list;
    return ratiosOfPairs(
        [] {
            const double seconds = secondsOf([] { Forms::use<frmcadastro_produtos>(); });
            Forms::use<frmcadastro_produtos>().Unload();
            QCoreApplication::processEvents();
            return seconds;
        },
        [&] {
            const double seconds = secondsOf([&] {
                list = std::make_unique<BareList>(std::vector{0, 3, 12, 8, 10, 4, 5, 6, 7, 11, 9});
                list->load(products, ProductColumn::Description);
            });
            list.reset();
            return seconds;
        });
}

/// Moves one product to another category and back, so that both sides move the same rows.
Quartiles ratioOfEdit(BareFile &file)
{
    auto &window = Forms::use<frmcadastro_produtos>();
    window.Show();
    QCoreApplication::processEvents();
    auto &grid = control<FlexGrid>(window, "tab_produtos");
    const std::vector<std::string> product = file.read("SELECT \"Descrição\",Categoria FROM Produtos WHERE Codigo=2");
    const int row = grid.findPrefix(QString::fromStdString(product[0]), 1, {ProductColumn::Description});
    BareStatement edit(file, "UPDATE Produtos SET Categoria=? WHERE Codigo=2");
    std::vector<BareStatement> sales;
    for (const std::string table : {"Venda_Produtos", "Venda_ProdutosOti"})
        sales.emplace_back(file, "UPDATE " + table + " SET Categoria=? WHERE \"Descrição\"=?");
    return ratiosOfPairs(
        [&] {
            grid.goToRow(row, ProductColumn::Description);
            click(window, "cmdeditar");
            control<ComboBox>(window, "cmbcategoria").setText("OUTRA");
            return secondsOf([&] { click(window, "cmdeditar"); });
        },
        [&] {
            return secondsOf([&] {
                edit.with(product[1]).run();
                for (BareStatement &statement : sales)
                    statement.with(product[1], product[0]).run();
            });
        });
}

/// What stands on the printed pages, each text where a painter is told to put it.
class BarePages
{
public:
    explicit BarePages(const QString &file) : m_sheets(file)
    {
        m_sheets.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}));
        QFont font;
        font.setFamilies({"Courier New", "Liberation Mono"});
        font.setHintingPreference(QFont::PreferNoHinting);
        font.setPixelSize(200);
        m_ascent = QFontMetricsF(font).ascent();
        m_painter.begin(&m_sheets);
        const double scale = m_sheets.resolution() / 1440.0;
        m_painter.scale(scale, scale);
        m_painter.setFont(font);
    }

    void print(const FlexGrid &grid)
    {
        for (int row = 1; row < grid.Rows(); ++row) {
            const auto column = [&](int col, int width = 0) { return grid.TextMatrix(row, col).leftJustified(width); };
            const int line = 1 + (row - 1) % productsOnPage * 5;
            if (line == 1)
                printHead((row - 1) / productsOnPage + 1);
            draw(0, line, m_name + column(1, 32) + m_code + column(3) + m_stock + column(5, 13) + m_least + column(6));
            draw(0, line + 1, m_price + column(7, 26) + m_supplier + column(8));
            draw(0, line + 2, m_barcode + column(10, 31) + m_category + column(2));
            draw(0, line + 4, m_rule);
        }
    }

private:
    void printHead(int page)
    {
        if (page > 1)
            m_sheets.newPage();
        draw(0, 0, m_heading);
        draw(88, 0, "Pág." + QString::number(page));
        draw(0, 1, m_rule);
    }
    void draw(int column, int line, const QString &text)
    {
        m_painter.drawText(QPointF(column * 120, line * 240 + m_ascent), text);
    }
    static QString label(const QString &number) { return productTexts.text("DispositivoSaida" + number); }

    QPdfWriter m_sheets;
    QPainter m_painter;
    double m_ascent = 0;
    const QString m_rule = QString(95, '*');
    const QString m_heading = label("1") + "15/03/2024 às 14:30:05";
    const QString m_name = label("4");
    const QString m_code = label("4_2");
    const QString m_stock = label("5");
    const QString m_least = label("6");
    const QString m_price = label("7");
    const QString m_supplier = label("8") + SimboloMoeda + " ";
    const QString m_barcode = label("9");
    const QString m_category = label("10");
};

Quartiles ratioOfPrinting()
{
    FakeMachine machine;
    FlexGrid &grid = control<FlexGrid>(Forms::use<frmcadastro_produtos>(), "tab_produtos");
    grid.setRows(1 + printedProducts);
    const QTemporaryDir folder;
    return ratiosOfPairs(
        [&] {
            return secondsOf(
                [&] { printProducts(Forms::use<frmcadastro_produtos>(), grid, printedProducts, "5000 produtos"); });
        },
        [&] { return secondsOf([&] { BarePages(folder.filePath("bare.pdf")).print(grid); }); });
}
} // namespace

void addProductFigures(FigureTable &table, const QString &cafe)
{
    const WorkingCopy copy(cafe);
    enlarge(copy.folder());
    const Program program(copy.folder());
    BareFile file(dataFileOf(copy.folder()));
    table.add("loading 32,767 products", ratioOfLoading(file), 1.5);
    table.add("another category for a product with 1,000,000 sales", ratioOfEdit(file), 1.1);
    table.add("printing 5,000 products", ratioOfPrinting(), 1.2);
}
