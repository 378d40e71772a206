#include "bench/CodeFigures.h"

#include "bench/BareFile.h"
#include "bench/Figures.h"
#include "bench/Program.h"
#include "cafe/Cafe.h"
#include "codes/frmcodigo_rapido.h"
#include "platform/base/Machine.h"
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
double secondsOfBareSale(BareFile &file)
{
    const std::string name = nextName();
    const std::string code = nextCode();
    const auto next = [&](const std::string &table) {
        const std::string highest = file.read("SELECT Max(Codigo) FROM " + table)[0];
        return std::to_string(1 + (highest.empty() ? 0 : std::stoll(highest)));
    };
    return secondsOf([&] {
        file.read("SELECT Max(ID_Caixa) FROM Registro_Caixa");
        file.read("SELECT Caixa_Aberto FROM Registro_Caixa WHERE ID_Caixa=1");
        file.read("SELECT Codigo FROM Links WHERE Nome='" + name + "'");
        file.read("SELECT LiberarAuto FROM Descontos WHERE Codigo=1");
        file.read("SELECT * FROM Descontos WHERE Codigo=1");
        file.read("SELECT Codigo_Acesso FROM Codigo_Acesso WHERE Codigo_Acesso='" + code + "'");
        file.write(
            "INSERT INTO Codigo_Acesso (Codigo_Acesso,Status,Valor_Disponivel,Tipo_Codigo,URL,Data_Criacao) VALUES ('" +
            code + "','N','3,00','E','http://www.example.com/','15/03/2024')");
        file.write(
            "INSERT INTO Venda_Codigos (Codigo,Data,Hora,Codigo_Acesso,Nome,Nick,Valor,Recarregamento,Avulsa,Desconto,"
            "Motivo_Desconto,Id_Caixa) VALUES (" +
            next("Venda_Codigos") + ",'15/03/2024','14:30:05','" + code + "','" + name +
            "','------','3,00',0,0,'0,00','-----------',1)");
        file.write("UPDATE Codigo_Acesso SET Vendido=-1 WHERE Codigo_Acesso='" + code + "'");
        file.write("INSERT INTO Links (Codigo,Nome,Codigo_Acesso) VALUES (" + next("Links") + ",'" + name + "','" +
                   code + "')");
        file.write("UPDATE Codigo_Acesso SET Vinculado=-1 WHERE Codigo_Acesso='" + code + "'");
    });
}
} // namespace

void addCodeFigures(FigureTable &table, const QString &cafe)
{
    const Program program(cafe);
    const auto playWave = Machine::current().playWave;
    // A sound player is a process of its own.
    Machine::current().playWave = [](const QString &) {};
    BareFile file(dataFileOf(cafe));
    table.add("confirming an access code paid before",
              ratioOfMedians(21, secondsOfSale, [&] { return secondsOfBareSale(file); }), 1.3);
    Machine::current().playWave = playWave;
}
