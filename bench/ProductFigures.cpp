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
#include <QPrinter>

#include <string>

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
    BareStatement products(file, "SELECT * FROM Produtos ORDER BY \"Descrição\"");
    BareList list({0, 3, 12, 8, 10, 4, 5, 6, 7, 11, 9});
    return ratiosOfPairs(
        [] {
            const double seconds = secondsOf([] { Forms::use<frmcadastro_produtos>(); });
            Forms::use<frmcadastro_produtos>().Unload();
            QCoreApplication::processEvents();
            return seconds;
        },
        [&] { return secondsOf([&] { list.load(products); }); });
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

struct PlacedText
{
    int column;
    int line;
    QString text;
};

/// What stands on the printed pages.
QList<QList<PlacedText>> pagesOf(const FlexGrid &grid)
{
    const auto text = [](const char *key) { return productTexts.text(key); };
    const QString rule(95, '*');
    QList<QList<PlacedText>> pages;
    for (int row = 1; row < grid.Rows(); ++row) {
        const auto column = [&](int col, int width = 0) { return grid.TextMatrix(row, col).leftJustified(width); };
        const int line = 1 + (row - 1) % productsOnPage * 5;
        if (line == 1)
            pages.append({{0, 0, text("DispositivoSaida1") + "15/03/2024 às 14:30:05"},
                          {88, 0, "Pág." + QString::number(pages.size() + 1)},
                          {0, 1, rule}});
        pages.last() +=
            {{0, line,
              text("DispositivoSaida4") + column(1, 32) + text("DispositivoSaida4_2") + column(3) +
                  text("DispositivoSaida5") + column(5, 13) + text("DispositivoSaida6") + column(6)},
             {0, line + 1,
              text("DispositivoSaida7") + column(7, 26) + text("DispositivoSaida8") + SimboloMoeda + " " + column(8)},
             {0, line + 2, text("DispositivoSaida9") + column(10, 31) + text("DispositivoSaida10") + column(2)},
             {0, line + 4, rule}};
    }
    return pages;
}

void paintBare(const QList<QList<PlacedText>> &pages, const QString &file)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
    printer.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}));
    printer.setFullPage(true);
    QFont font;
    font.setFamilies({"Courier New", "Liberation Mono"});
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPixelSize(200);
    QPainter painter(&printer);
    const double scale = printer.resolution() / 1440.0;
    painter.scale(scale, scale);
    painter.setFont(font);
    const double ascent = QFontMetricsF(font).ascent();
    for (const QList<PlacedText> &page : pages) {
        if (&page != &pages.first())
            printer.newPage();
        for (const PlacedText &each : page)
            painter.drawText(QPointF(each.column * 120, each.line * 240 + ascent), each.text);
    }
}

Quartiles ratioOfPrinting()
{
    FakeMachine machine;
    FlexGrid &grid = control<FlexGrid>(Forms::use<frmcadastro_produtos>(), "tab_produtos");
    grid.setRows(1 + printedProducts);
    const QTemporaryDir folder;
    return ratiosOfPairs(
        [&] {
            return secondsOf(
                [&] { imprimirProdutos(Forms::use<frmcadastro_produtos>(), grid, printedProducts, "5000 produtos"); });
        },
        [&] { return secondsOf([&] { paintBare(pagesOf(grid), folder.filePath("bare.pdf")); }); });
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
