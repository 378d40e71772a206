#include "bench/CodeFigures.h"

#include "bench/BareFile.h"
#include "bench/Figures.h"
#include "bench/Program.h"
#include "cafe/Cafe.h"
#include "codes/frmcodigo_rapido.h"
#include "platform/window/Forms.h"
#include "tests/support/Controls.h"

#include <QCheckBox>

#include <string>

namespace {
/// A name and a code that no sale before this one had.
std::string nextName()
{
    static int sales = 0;
    return "COMPRADOR " + std::to_string(QDateTime::currentMSecsSinceEpoch()) + ' ' + std::to_string(++sales);
}

std::string nextCode()
{
    static qint64 code = QDateTime::currentMSecsSinceEpoch() % 1000000000;
    return QString::number(++code).rightJustified(12, '0').toStdString();
}

double secondsOfSale()
{
    auto &window = Forms::use<frmcodigo_rapido>();
    window.Venda_ao_Cliente(QString::fromStdString(nextName()), "------");
    click(window, "optexpira");
    for (const char *box : {"chkrecibo", "chkimprimir_etiqueta"})
        control<QCheckBox>(window, box).setChecked(false);
    replaceText(control(window, "txtadi_cartao"), QString::fromStdString(nextCode()));
    replaceText(control(window, "txtvalor_disponível"), "3");
    return secondsOf([&] { click(window, "cmdfinalizar"); });
}

/// What the confirmation asks and writes, without a window around it.
class BareSale
{
public:
    explicit BareSale(BareFile &file) : m_file(file) {}

    double secondsOfSale()
    {
        const std::string name = nextName();
        const std::string code = nextCode();
        // The window looked at these when it opened.
        m_link.with(name).run();
        m_rules.run();
        return secondsOf([&] {
            const long long period = m_lastPeriod.number();
            m_isOpen.with(period).run();
            m_link.with(name).run();
            m_isAutomatic.run();
            m_rule.run();
            m_codeIsTaken.with(code).run();
            m_code.with(code).run();
            m_sale.with(m_lastSale.number() + 1, code, name, period).run();
            m_sold.with(code).run();
            m_newLink.with(m_lastLink.number() + 1, name, code).run();
            m_linked.with(code).run();
        });
    }

private:
    BareFile &m_file;
    BareStatement m_lastPeriod{m_file, "SELECT Max(ID_Caixa) FROM Registro_Caixa"};
    BareStatement m_isOpen{m_file, "SELECT Caixa_Aberto FROM Registro_Caixa WHERE ID_Caixa=?"};
    BareStatement m_link{m_file, "SELECT Codigo FROM Links WHERE Nome=?"};
    BareStatement m_isAutomatic{m_file, "SELECT LiberarAuto FROM Descontos WHERE Codigo=1"};
    BareStatement m_rule{m_file, "SELECT * FROM Descontos WHERE Codigo=1"};
    BareStatement m_rules{m_file, "SELECT * FROM Descontos ORDER BY Codigo"};
    BareStatement m_codeIsTaken{m_file, "SELECT Codigo_Acesso FROM Codigo_Acesso WHERE Codigo_Acesso=?"};
    BareStatement m_code{
        m_file, "INSERT INTO Codigo_Acesso (Codigo_Acesso,Status,Valor_Disponivel,Tipo_Codigo,URL,Data_Criacao) VALUES "
                "(?,'N','3,00','E','http://www.example.com/','15/03/2024')"};
    BareStatement m_lastSale{m_file, "SELECT Max(Codigo) FROM Venda_Codigos"};
    BareStatement m_sale{
        m_file, "INSERT INTO Venda_Codigos (Codigo,Data,Hora,Codigo_Acesso,Nome,Nick,Valor,Recarregamento,Avulsa,"
                "Desconto,Motivo_Desconto,Id_Caixa) VALUES "
                "(?,'15/03/2024','14:30:05',?,?,'------','3,00',0,0,'0,00','-----------',?)"};
    BareStatement m_sold{m_file, "UPDATE Codigo_Acesso SET Vendido=-1 WHERE Codigo_Acesso=?"};
    BareStatement m_lastLink{m_file, "SELECT Max(Codigo) FROM Links"};
    BareStatement m_newLink{m_file, "INSERT INTO Links (Codigo,Nome,Codigo_Acesso) VALUES (?,?,?)"};
    BareStatement m_linked{m_file, "UPDATE Codigo_Acesso SET Vinculado=-1 WHERE Codigo_Acesso=?"};
};
} // namespace

void addCodeFigures(FigureTable &table, const QString &cafe)
{
    const Program program(cafe);
    BareFile file(dataFileOf(cafe));
    BareSale sale(file);
    table.add("confirming an access code paid before",
              ratiosOfPairs(secondsOfSale, [&] { return sale.secondsOfSale(); }), 1.2);
}
