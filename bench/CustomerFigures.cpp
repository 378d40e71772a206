#include "bench/CustomerFigures.h"

#include "bench/BareFile.h"
#include "bench/Figures.h"
#include "bench/Program.h"
#include "bench/WorkingCopy.h"
#include "cafe/Cafe.h"
#include "customers/CustomerColumns.h"
#include "customers/frmcadastro_clientes.h"
#include "platform/window/FlexGrid.h"
#include "platform/window/Forms.h"
#include "tests/support/Controls.h"

#include <QCoreApplication>

#include <algorithm>
#include <string>
#include <vector>

namespace {
constexpr int deletedRows = 10000;
const char *const deletedFrom[] = {"Clientes", "Codigo_Acesso", "Links"};
const char *const followingTables[] = {"Lista_espera", "Log", "Clientes_Bloqueados", "Monitor_Impressao"};

/// Gives a café as many sold codes as it has sales, and links for all.
void sellCodes(const QString &cafe)
{
    BareFile file(dataFileOf(cafe));
    // Millions of rows scattered over an index: this connection alone takes a cache that holds them.
    file.write("PRAGMA cache_size=-400000;"
               "BEGIN; INSERT INTO Venda_Codigos SELECT Codigo,Data,Hora,'C'||Codigo,Nome,Nick,Valor_Total,0,Avulsa,"
               "Desconto,Motivo_Desconto,Id_Caixa FROM Venda_Produtos;"
               "INSERT INTO Links SELECT Codigo,Nome,'C'||Codigo FROM Clientes;"
               "INSERT INTO Codigo_Acesso (Codigo_Acesso,Status) SELECT 'C'||Codigo,'LIVRE' FROM Clientes;");
    for (const std::string table : followingTables)
        file.write("INSERT INTO " + table + " SELECT Nome,Nick FROM Clientes");
    file.write("COMMIT");
}

/// The customer window on one café, worked by hand.
class Desk
{
public:
    explicit Desk(const QString &cafe) : m_program(cafe)
    {
        window().Show();
        QCoreApplication::processEvents();
    }

    frmcadastro_clientes &window() { return Forms::use<frmcadastro_clientes>(); }
    FlexGrid &grid() { return control<FlexGrid>(window(), "tab_clientes"); }

    double secondsOfSort(int column)
    {
        clickCell(grid(), 1, column);
        return secondsOf([this] { click(window(), "cmdordenar"); });
    }
    double secondsOfSearch(const QString &name)
    {
        clickCell(grid(), 1, CustomerColumn::Name);
        auto &box = control(window(), "txtnome_busca");
        replaceText(box, name);
        // Neither side draws: what the window costs on screen is the same for any number of rows.
        window().setUpdatesEnabled(false);
        const double seconds = secondsOf([&] { pressKey(box, Qt::Key_Return); });
        window().setUpdatesEnabled(true);
        return seconds;
    }
    double secondsOfRename(const QString &name, const QString &nick)
    {
        clickCell(grid(), 1, CustomerColumn::Name);
        click(window(), "cmdeditar");
        replaceText(control(window(), "txtnome"), name);
        replaceText(control(window(), "txtnick"), nick);
        return secondsOf([this] { click(window(), "cmdeditar"); });
    }
    double secondsOfDeletion()
    {
        secondsOfSort(CustomerColumn::Codigo);
        clickCell(grid(), 1, CustomerColumn::Name);
        clickCell(grid(), deletedRows, CustomerColumn::Name, Qt::ShiftModifier);
        return secondsOf([this] { click(window(), "cmdexcluir"); });
    }

private:
    Program m_program;
};

double ratioOfSort(Desk &desk, BareFile &file)
{
    return ratioOfMedians(
        9, [&] { return desk.secondsOfSort(CustomerColumn::Name); },
        [&] {
            return secondsOf([&] {
                file.read("SELECT Codigo,Nome,Nick,Grupo,Data_Nasc,Obs,Autorizado FROM Clientes ORDER BY Nome");
            });
        });
}

double ratioOfSearch(Desk &desk)
{
    const FlexGrid &grid = desk.grid();
    std::vector<QString> names;
    std::vector<QString> nicks;
    for (int row = 1; row < grid.Rows(); ++row) {
        names.push_back(grid.TextMatrix(row, CustomerColumn::Name));
        nicks.push_back(grid.TextMatrix(row, CustomerColumn::Nick));
    }
    const QString last = names.back();
    std::size_t found = 0;
    return ratioOfMedians(
        21, [&] { return desk.secondsOfSearch(last); },
        [&] {
            return secondsOf([&] {
                found = 0;
                while (!names[found].startsWith(last) && !nicks[found].startsWith(last))
                    ++found;
            });
        });
}

/// Renames one customer to and fro, so that both sides move the same rows.
double ratioOfRename(Desk &desk, BareFile &file)
{
    desk.secondsOfSort(CustomerColumn::Codigo);
    const std::string name = desk.grid().TextMatrix(1, CustomerColumn::Name).toStdString();
    const std::string nick = desk.grid().TextMatrix(1, CustomerColumn::Nick).toStdString();
    const std::string otherName = "QUEM SE CHAMAVA " + name.substr(0, 8);
    std::vector<std::string> tables(std::begin(followingTables), std::end(followingTables));
    tables.emplace_back("Venda_Codigos");
    tables.emplace_back("Venda_Produtos");
    return ratioOfMedians(
        9, [&] { return desk.secondsOfRename(QString::fromStdString(otherName), "OUTRO NICK"); },
        [&] {
            file.write("UPDATE Clientes SET Nome='" + name + "',Nick='" + nick + "' WHERE Codigo=1");
            return secondsOf([&] {
                const std::string newName = " SET Nome='" + name + "' WHERE Nome='" + otherName + "'";
                file.write("UPDATE Links" + newName);
                for (const std::string &table : tables)
                    file.write("UPDATE " + table + newName);
                for (const std::string &table : tables)
                    file.write("UPDATE " + table + " SET Nick='" + nick + "' WHERE Nome='" + name + "'");
            });
        });
}

double ratioOfDeletion(Desk &desk, const QString &dataFile)
{
    BareFile file(dataFile);
    // On a connection of its own, so that putting rows back warms the cache of neither side.
    BareFile keeper(dataFile);
    keeper.write("PRAGMA temp_store=MEMORY");
    for (const std::string table : deletedFrom)
        keeper.write("CREATE TEMP TABLE kept_" + table + " AS SELECT * FROM main." + table);
    const auto putBack = [&] {
        keeper.write("BEGIN");
        for (const std::string table : deletedFrom)
            keeper.write("INSERT OR IGNORE INTO main." + table + " SELECT * FROM kept_" + table);
        keeper.write("COMMIT");
    };
    const std::string range = "BETWEEN 1 AND " + std::to_string(deletedRows);
    std::string names;
    for (const std::string &name : keeper.read("SELECT Nome FROM main.Clientes WHERE Codigo " + range))
        names += (names.empty() ? "'" : ",'") + name + "'";
    return ratioOfMedians(
        5,
        [&] {
            putBack();
            return desk.secondsOfDeletion();
        },
        [&] {
            putBack();
            return secondsOf([&] {
                file.write("DELETE FROM Clientes WHERE Codigo " + range);
                file.write(
                    "DELETE FROM Codigo_Acesso WHERE Codigo_Acesso IN (SELECT Codigo_Acesso FROM Links WHERE Nome "
                    "IN (" +
                    names + "))");
                file.write("DELETE FROM Links WHERE Nome IN (" + names + ")");
            });
        });
}
} // namespace

void addCustomerFigures(FigureTable &table, const QString &cafe)
{
    const WorkingCopy copy(cafe);
    sellCodes(copy.folder());
    Desk desk(copy.folder());
    BareFile file(dataFileOf(copy.folder()));
    table.add("sorting the list of 32,767 customers", ratioOfSort(desk, file), 3.0);
    table.add("a search that hits the last of them", ratioOfSearch(desk), 2.0);
    table.add("a rename with 1,000,000 rows in each sale table", ratioOfRename(desk, file), 1.2);
    table.add("deleting 10,000 selected customers", ratioOfDeletion(desk, dataFileOf(copy.folder())), 2.0);
}
