#include "checkout/SaleReceipt.h"

#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "configuration/Globais.h"
#include "configuration/Idiomas.h"
#include "data/Queries.h"
#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/text/Dates.h"
#include "platform/text/Numbers.h"
#include "windows/Amounts.h"
#include "windows/PageScale.h"

namespace {
constexpr int linesPerSheet = 58;
constexpr int lastHeadingLine = 59;
constexpr int headingLines = 6;
/// Lines on which a copy closes: the first at the middle of the sheet, the second at its foot.
constexpr int firstCopyEnd = 29;
constexpr int secondCopyStart = 30;
constexpr int secondCopyEnd = 60;
constexpr double highestNumber = 99999;
const QString portStars(80, '*');

double nextNumber(const QString &stored)
{
    const double next = Val(QStringView(stored)) + 1;
    return next > highestNumber ? 1 : next;
}
} // namespace

SaleReceipt::SaleReceipt(const Keys &keys) : m_keys(keys) {}

QString SaleReceipt::text(const QString &key) const
{
    return textoIdioma(m_keys.section, key);
}

void SaleReceipt::Gerar_Recibo(const Content &content)
{
    m_arquivo = Pasta_Do_Arquivo(CaminhoBD) + "\\inf.rcb";
    m_segundaVia = false;
    m_numero.clear();
    m_linha = 0;
    const QDateTime moment = Machine::current().now();
    Data_Recibo = FormatDate(moment, FormatoData);
    Hora_Recibo = FormatTime(moment);
    m_device.open();
    Info_Comprovante(content);
}

void SaleReceipt::Info_Comprovante(const Content &content)
{
    Restaurar_Escala_Impressora();
    m_device.beginPage();
    m_linhaInicial = m_linha;
    Cabeçalho_Recibo(content);
    m_linha += headingLines;
    m_device.write();
    content.details(*this);
    printTotals(content);
    closeCopy();

    if (Ler_INI(caminhoConfig(), "Recibo", "Via") == "2" && !m_segundaVia) {
        m_segundaVia = true;
        m_linha = secondCopyStart;
        Info_Comprovante(content);
        return;
    }
    m_segundaVia = false;
    m_device.finish(m_numero.trimmed());
    Restaurar_Escala_Impressora();
    if (!m_device.failed()) {
        Gravar_INI(m_arquivo, "Recibo", "ID", Cstr(m_id).trimmed());
        Gravar_INI(m_arquivo, "Recibo", "ID_Total", Cstr(m_idTotal).trimmed());
    }
}

bool SaleReceipt::headingIsDue() const
{
    return (m_linha - m_linhaInicial) % linesPerSheet == 0 || m_linha >= lastHeadingLine;
}

void SaleReceipt::Cabeçalho_Recibo(const Content &content)
{
    if (!headingIsDue())
        return;
    if (m_linha != m_linhaInicial) {
        m_device.nextSheet();
        m_linha = m_linhaInicial;
    }
    numberReceipt();
    printHeading(content);
}

void SaleReceipt::numberReceipt()
{
    // Further sheets and the second copy bear the number of the first heading.
    if (!m_numero.isEmpty())
        return;
    m_idTotal = nextNumber(Ler_INI(m_arquivo, "Recibo", "ID_Total"));
    if (Ler_INI(m_arquivo, "Recibo", "Data") == Data_Recibo) {
        m_id = nextNumber(Ler_INI(m_arquivo, "Recibo", "ID"));
    } else {
        m_id = 1;
        Gravar_INI(m_arquivo, "Recibo", "Data", Data_Recibo);
    }
    m_numero = textoCarregado(m_keys.section, m_keys.dayNumber) + Format(m_id, u"00000") +
               textoCarregado(m_keys.section, m_keys.runningNumber) + Format(m_idTotal, u"00000");
}

void SaleReceipt::printHeading(const Content &content)
{
    const QString moment = Data_Recibo + "  " + Hora_Recibo;
    m_device.place(0, m_linha, m_numero);
    m_device.place(28, m_linha, text(m_keys.printerDate) + moment);
    m_device.rule('*', m_linha + 1);
    m_device.write(text(m_keys.portDate) + moment);
    m_device.write(portStars);

    printCompany();
    m_device.rule('*', m_linha + 4);
    m_device.write(portStars);

    const QString buyer =
        content.withoutCustomer ? text(m_keys.noCustomer) : text(m_keys.customer) + content.customer.toUpper();
    m_device.place(0, m_linha + 5, buyer);
    m_device.write(buyer);
}

void SaleReceipt::printCompany()
{
    readFirstRow("Select * From Empresa Where Codigo=1", [this](const Recordset &rs) {
        const auto field = [&](const char *name) { return rs.Fields(name).text(); };
        const auto print = [this](int column, int line, const QString &item) {
            m_device.place(column, m_linha + line, item);
            m_device.write(item);
        };
        OnErrorResumeNext([&] { print(0, 2, field("Razao_Social")); },
                          [&] { print(70, 2, text(m_keys.taxNumber) + field("CGC")); },
                          [&] {
                              print(0, 3,
                                    field("Endereco") + ", " + field("Numero") + text(m_keys.district) +
                                        field("Bairro") + " - " + field("Cidade") + " / " + field("UF"));
                          });
    });
}

void SaleReceipt::lineDone(const Content &content)
{
    ++m_linha;
    if (!headingIsDue())
        return;
    Cabeçalho_Recibo(content);
    // The details go on below the fresh heading, where they began on the first sheet.
    m_linha += headingLines + 2;
}

void SaleReceipt::printTotals(const Content &content)
{
    const auto line = [&](const QString &text) {
        ++m_linha;
        m_device.place(0, m_linha, text);
        m_device.write(text);
    };
    line(text(m_keys.total) + content.total);

    const double discount = readNumber(QStringView(content.discount)).value_or(0);
    const QString motive = discount != 0 ? " (" + content.motive() + ")" : QString();
    line(text(m_keys.discount) + receiptAmount(discount) + motive);

    line(text(m_keys.paid) + receiptAmount(content.paid));
    if (!m_keys.change.isEmpty())
        line(text(m_keys.change) + content.change);
}

void SaleReceipt::closeCopy()
{
    const int end = m_segundaVia ? secondCopyEnd : firstCopyEnd;
    m_device.rule('*', end);
    m_device.writeEmptyLines(end - m_linha);
    m_device.write(portStars);
}
