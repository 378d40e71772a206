#include "bench/CodeFigures.h"
#include "bench/CustomerFigures.h"
#include "bench/Figures.h"
#include "bench/LabelFigures.h"
#include "bench/ProductFigures.h"
#include "bench/SaleFigures.h"
#include "bench/StartFigures.h"
#include "cafe/Cafe.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/text/RegionalSettings.h"
#include "platform/window/Application.h"

#include <QDir>
#include <QTextStream>

namespace {
constexpr int manyCustomers = 32767;
constexpr int manyRules = 255;

/// A café for the figures, kept between runs because the large one takes a while to make.
QString cafeWithSales(int sales)
{
    const QString folder = QCoreApplication::applicationDirPath() + "/../bench/sales-" + QString::number(sales);
    if (QDir(folder).exists())
        return folder;
    QDir().mkpath(QFileInfo(folder).path());
    createCafe(folder, {.demo = true, .customers = manyCustomers, .sales = sales});
    const DatabaseHandle file = openDataFile(folder);
    const RecordsetHandle rs = file->OpenRecordset("Select Max(Codigo) from Descontos");
    file->inTransaction([&] {
        for (int code = static_cast<int>(rs->Fields(0).number()) + 1; code <= manyRules; ++code)
            file->Execute(
                QString("Insert into Descontos (Codigo,Motivo_Desconto,Fixo,Relativo,Absoluto,Grupo,Categoria,"
                        "AtoCadastro,Valor,TipoVenda,Condicao,LiberarAuto) values (%1,'REGRA %1',True,'1','0',"
                        "'GRUPO %2','BEBIDAS',False,'%1','2','1',True)")
                    .arg(code)
                    .arg(code % 7));
    });
    return folder;
}
} // namespace

int main(int argc, char **argv)
{
    constexpr int cannotMeasure = 2;
    const Application application(argc, argv);
    RegionalSettings::use(QLocale(QLocale::Portuguese, QLocale::Brazil));
    // A sound player is a process of its own.
    Machine::current().playWave = [](const QString &) {};
    try {
        const QString small = cafeWithSales(1000);
        const QString large = cafeWithSales(1000000);
        const QStringList wanted = QCoreApplication::arguments().mid(1);
        FigureTable table;
        const auto measure = [&](const QString &group, const std::function<void()> &add) {
            if (wanted.isEmpty() || wanted.contains(group))
                add();
        };
        measure("start", [&] { addStartFigures(table, small); });
        measure("sale", [&] { addSaleFigures(table, small, large); });
        measure("customers", [&] { addCustomerFigures(table, large); });
        measure("codes", [&] { addCodeFigures(table, small); });
        measure("labels", [&] { addLabelFigures(table); });
        measure("products", [&] { addProductFigures(table, large); });
        return table.exitCode();
    } catch (const std::exception &error) {
        QTextStream(stderr) << error.what() << '\n';
        return cannotMeasure;
    }
}
