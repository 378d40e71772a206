#include "bench/CustomerFigures.h"

#include "bench/BareFile.h"
#include "bench/BareList.h"
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
const char *const nickedIn[] = {"Lista_espera",      "Log",           "Clientes_Bloqueados",
                                "Monitor_Impressao", "Venda_Codigos", "Venda_Produtos"};
const char *const renamedIn[] = {"Links",         "Lista_espera",  "Log", "Clientes_Bloqueados", "Monitor_Impressao",
                                 "Venda_Codigos", "Venda_Produtos"};
const std::string bareList = "SELECT Codigo,Nome,Nick,Grupo,Data_Nasc,Obs,Autorizado FROM Clientes";
const std::vector<int> bareFields{0, 1, 2, 3, 4, 5, 6};

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

Quartiles ratioOfSort(Desk &desk, BareFile &file)
{
    BareStatement customers(file, bareList);
    BareList list(bareFields);
    list.show();
    return ratiosOfPairs([&] { return desk.secondsOfSort(CustomerColumn::Name); },
                         [&] { return secondsOf([&] { list.load(customers, CustomerColumn::Name); }); });
}

Quartiles ratioOfSearch(Desk &desk, BareFile &file)
{
    // Already in order, so that the texts lie in the memory as they are walked through.
    BareStatement customers(file, bareList + " ORDER BY Nome");
    BareList list(bareFields);
    list.show();
    list.load(customers, -1);
    desk.secondsOfSort(CustomerColumn::Name);
    const FlexGrid &grid = desk.grid();
    const QString last = grid.TextMatrix(grid.Rows() - 1, CustomerColumn::Name);
    return ratiosOfPairs(
        [&] { return desk.secondsOfSearch(last); },
        [&] { return secondsOf([&] { list.goTo(last, CustomerColumn::Name, CustomerColumn::Nick); }); });
}

/// What the window asks and writes when a customer gets another name and nick.
class BareRename
{
public:
    explicit BareRename(BareFile &file) : m_file(file)
    {
        for (const char *table : renamedIn)
            m_names.emplace_back(file, std::string("UPDATE ") + table + " SET Nome=?1 WHERE Nome=?2");
        for (const char *table : nickedIn)
            m_nicks.emplace_back(file, std::string("UPDATE ") + table + " SET Nick=?1 WHERE Nome=?2");
    }

    double secondsOfRename(const std::string &name, const std::string &nick, const std::string &oldName)
    {
        return secondsOf([&] {
            m_nameIsTaken.with(name).run();
            m_nickIsTaken.with(nick, oldName).run();
            m_customer.with(name, nick).run();
            for (BareStatement &statement : m_names)
                statement.with(name, oldName).run();
            for (BareStatement &statement : m_nicks)
                statement.with(nick, name).run();
        });
    }

private:
    BareFile &m_file;
    BareStatement m_nameIsTaken{m_file, "SELECT Nome FROM Clientes WHERE Nome=?"};
    BareStatement m_nickIsTaken{m_file, "SELECT Nome FROM Clientes WHERE Nick=? AND Nome<>? AND Nick<>'------'"};
    BareStatement m_customer{m_file, "UPDATE Clientes SET Nome=?,Nick=? WHERE Codigo=1"};
    std::vector<BareStatement> m_names;
    std::vector<BareStatement> m_nicks;
};

/// Renames one customer to and fro, so that both sides move the same rows.
Quartiles ratioOfRename(Desk &desk, BareFile &file)
{
    desk.secondsOfSort(CustomerColumn::Codigo);
    const std::string name = desk.grid().TextMatrix(1, CustomerColumn::Name).toStdString();
    const std::string nick = desk.grid().TextMatrix(1, CustomerColumn::Nick).toStdString();
    const std::string otherName = "QUEM SE CHAMAVA " + name.substr(0, 8);
    BareRename rename(file);
    return ratiosOfPairs([&] { return desk.secondsOfRename(QString::fromStdString(otherName), "OUTRO NICK"); },
                         [&] { return rename.secondsOfRename(name, nick, otherName); });
}

/// Deletes the customers with the first numbers and reads the list anew.
class BareDeletion
{
public:
    explicit BareDeletion(BareFile &file) : m_file(withTable(file)) {}

    double secondsOfDeletion(const std::vector<std::string> &names)
    {
        return secondsOf([&] {
            m_customers.run();
            for (const std::string &name : names)
                m_listed.with(name).run();
            m_codes.run();
            m_links.run();
            m_file.write("DELETE FROM listed");
            m_list.load(m_left, -1);
        });
    }

private:
    static BareFile &withTable(BareFile &file)
    {
        file.write("CREATE TEMP TABLE listed (name)");
        return file;
    }

    BareFile &m_file;
    BareStatement m_customers{m_file, "DELETE FROM Clientes WHERE Codigo BETWEEN 1 AND " + std::to_string(deletedRows)};
    BareStatement m_listed{m_file, "INSERT INTO listed VALUES (?)"};
    BareStatement m_codes{m_file, "DELETE FROM Codigo_Acesso WHERE Codigo_Acesso IN (SELECT Codigo_Acesso FROM Links "
                                  "WHERE Nome IN (SELECT name FROM listed))"};
    BareStatement m_links{m_file, "DELETE FROM Links WHERE Nome IN (SELECT name FROM listed)"};
    BareStatement m_left{m_file, bareList + " ORDER BY Codigo"};
    BareList m_list{bareFields};
};

Quartiles ratioOfDeletion(Desk &desk, BareFile &file, const QString &dataFile)
{
    // On a connection of its own, so that putting rows back warms the cache of neither side.
    BareFile keeper(dataFile);
    for (const std::string table : deletedFrom)
        keeper.write("CREATE TEMP TABLE kept_" + table + " AS SELECT * FROM main." + table);
    const auto putBack = [&] {
        keeper.write("BEGIN");
        for (const std::string table : deletedFrom)
            keeper.write("INSERT OR IGNORE INTO main." + table + " SELECT * FROM kept_" + table);
        keeper.write("COMMIT");
    };
    const std::vector<std::string> names =
        keeper.read("SELECT Nome FROM main.Clientes WHERE Codigo BETWEEN 1 AND " + std::to_string(deletedRows));
    BareDeletion deletion(file);
    return ratiosOfPairs(
        [&] {
            putBack();
            return desk.secondsOfDeletion();
        },
        [&] {
            putBack();
            return deletion.secondsOfDeletion(names);
        });
}
} // namespace

void addCustomerFigures(FigureTable &table, const QString &cafe)
{
    const WorkingCopy copy(cafe);
    sellCodes(copy.folder());
    Desk desk(copy.folder());
    BareFile file(dataFileOf(copy.folder()));
    table.add("sorting the list of 32,767 customers", ratioOfSort(desk, file), 1.5);
    table.add("a search that hits the last of them", ratioOfSearch(desk, file), 1.5);
    table.add("a rename with 1,000,000 rows in each sale table", ratioOfRename(desk, file), 1.1);
    table.add("deleting 10,000 selected customers", ratioOfDeletion(desk, file, dataFileOf(copy.folder())), 1.3);
}
