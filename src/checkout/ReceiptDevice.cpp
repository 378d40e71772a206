#include "checkout/ReceiptDevice.h"

#include "configuration/Arquivos.h"
#include "configuration/Arquivos_INI.h"
#include "platform/base/Err.h"
#include "platform/print/Printer.h"
#include "windows/PageScale.h"

namespace {
constexpr int sheetColumns = 98;
constexpr double receiptPoints = 10;
} // namespace

template <typename Operation>
void ReceiptDevice::attempt(Operation &&operation)
{
    if (!OnErrorGoToEnd(operation))
        m_failed = true;
}

void ReceiptDevice::open()
{
    m_failed = false;
    m_toPort = Ler_INI(caminhoConfig(), "Matricial", "Ativo") == "1";
    if (!m_toPort)
        return;
    const QString port = Ler_INI(caminhoConfig(), "Matricial", "Porta");
    attempt([&] { m_port.OpenPort(port.isEmpty() ? "LPT1" : port); });
}

void ReceiptDevice::beginPage()
{
    if (!m_toPort)
        setUpPrinter(Printer::current(), receiptPoints, ScaleMode::Characters);
}

void ReceiptDevice::place(int column, int line, const QString &text)
{
    if (m_toPort)
        return;
    Printer &printer = Printer::current();
    printer.setCurrentX(column);
    printer.setCurrentY(line);
    printer.Print(text);
}

void ReceiptDevice::rule(QChar character, int line)
{
    for (int column = 1; column <= sheetColumns; ++column)
        place(column, line, character);
}

void ReceiptDevice::nextSheet()
{
    if (!m_toPort)
        Printer::current().NewPage();
}

void ReceiptDevice::write(const QString &line)
{
    if (m_toPort)
        attempt([&] { m_port.Print(line); });
}

void ReceiptDevice::writeEmptyLines(int count)
{
    if (m_toPort)
        Linhas_Em_Branco(count, m_port);
}

void ReceiptDevice::finish(const QString &documentName)
{
    if (m_port.isOpen())
        attempt([&] { m_port.Close(); });
    Printer::current().setDocumentName(documentName);
    attempt([&] { Printer::current().EndDoc(); });
}
