#include "platform/print/Printer.h"

#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/print/PagePainter.h"

#include <QDir>
#include <QFile>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace {

constexpr double twipsPerColumn = 120;
constexpr double twipsPerLine = 240;

[[noreturn]] void refuse(const QString &what)
{
    throw RunTimeError(ErrorNumber::PrinterError, "Printer error: " + what);
}

void setSheet(QPrinter &printer, int widthTwips, int heightTwips)
{
    const QSizeF points(double(widthTwips) / twipsPerPoint, double(heightTwips) / twipsPerPoint);
    const bool wide = points.width() > points.height();
    const QPageSize size(wide ? points.transposed() : points, QPageSize::Point, {}, QPageSize::FuzzyMatch);
    printer.setPageLayout(QPageLayout(size, wide ? QPageLayout::Landscape : QPageLayout::Portrait, {}));
    printer.setFullPage(true);
}

/// A file of that name which isn't there yet.
QString unusedFile(const QDir &folder, const QString &name)
{
    QString file = folder.filePath(name + ".pdf");
    for (int i = 2; QFile::exists(file); ++i)
        file = folder.filePath(QString("%1 (%2).pdf").arg(name).arg(i));
    return file;
}

/// The text without the characters that some file system refuses, and not too long for one. Names are limited in bytes,
/// 255 as a rule, and moment, number and ending come behind it.
QString fileName(QString text)
{
    static const QRegularExpression refused(R"([\x00-\x1f/\\:*?"<>|]+)");
    constexpr int mostCharacters = 100;
    constexpr int mostBytes = 200;
    text = text.replace(refused, " ").simplified().left(mostCharacters);
    while (QFile::encodeName(text).size() > mostBytes || (!text.isEmpty() && text.back().isHighSurrogate()))
        text.chop(1);
    return text;
}

} // namespace

Printer::Printer()
{
    m_font.setHintingPreference(QFont::PreferNoHinting);
    setFontName("Courier New");
    setFontSize(10);
}

Printer &Printer::current()
{
    static Printer printer;
    return printer;
}

QString Printer::DeviceName() const
{
    if (m_deviceChooser)
        m_deviceName = std::exchange(m_deviceChooser, nullptr)();
    return m_deviceName;
}

void Printer::setDeviceName(const QString &name)
{
    m_deviceName = name;
    m_deviceChooser = nullptr;
}

void Printer::setFontName(const QString &name)
{
    // The free twin of Courier New has the same widths.
    m_font.setFamilies({name, "Liberation Mono"});
    m_font.setStyleHint(QFont::Monospace);
}

void Printer::setFontSize(double points)
{
    m_font.setPixelSize(qRound(points * twipsPerPoint));
}

void Printer::setFontBold(bool bold)
{
    m_font.setBold(bold);
}

void Printer::setPageSize(int widthTwips, int heightTwips)
{
    m_pageWidth = widthTwips;
    m_pageHeight = heightTwips;
}

void Printer::Print(const QString &text, bool newLine)
{
    if (!text.isEmpty())
        page().texts.append({toTwips({m_currentX, m_currentY}), text, m_font});
    const bool characters = m_scaleMode == ScaleMode::Characters;
    if (newLine) {
        m_currentX = 0;
        m_currentY += characters ? 1 : QFontMetricsF(m_font).height();
    } else {
        m_currentX += characters ? double(text.size()) : QFontMetricsF(m_font).horizontalAdvance(text);
    }
}

void Printer::FillBox(const QRectF &box)
{
    page().boxes.append({QRectF(toTwips(box.topLeft()), toTwips(box.bottomRight()))});
}

void Printer::NewPage()
{
    page();
    m_pages.append(RecordedPage());
    m_currentX = m_currentY = 0;
}

void Printer::EndDoc()
{
    QList<RecordedPage> pages = std::exchange(m_pages, {});
    const QString title = std::exchange(m_documentName, {});
    m_currentX = m_currentY = 0;
    while (!pages.isEmpty() && pages.last().isEmpty())
        pages.removeLast();
    if (pages.isEmpty())
        return;
    const QString device = targetDevice();
    if (device.isEmpty())
        printToFile(title, pages);
    else
        printTo(device, title, pages);
}

QPointF Printer::toTwips(QPointF place) const
{
    if (m_scaleMode == ScaleMode::Characters)
        return {place.x() * twipsPerColumn, place.y() * twipsPerLine};
    return place;
}

RecordedPage &Printer::page()
{
    if (m_pages.isEmpty())
        m_pages.append(RecordedPage());
    return m_pages.last();
}

/// The printer that takes the document; an empty text when this computer has none.
QString Printer::targetDevice() const
{
    if (const QString chosen = DeviceName(); !chosen.isEmpty())
        return chosen;
    const QString systems = Machine::current().defaultPrinterName();
    return systems.isEmpty() ? Printers().value(0) : systems;
}

void Printer::printTo(const QString &device, const QString &title, const QList<RecordedPage> &pages) const
{
    // QPrinter takes any name for valid and would write a PDF into the current folder.
    const QPrinterInfo info = QPrinterInfo::printerInfo(device);
    if (info.isNull())
        refuse(device);
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setDocName(title);
    setSheet(printer, m_pageWidth, m_pageHeight);
    if (!paintPages(pages, printer))
        refuse(device);
}

void Printer::printToFile(const QString &title, const QList<RecordedPage> &pages) const
{
    const QDir folder(Machine::current().printoutFolder());
    if (!folder.mkpath("."))
        refuse(folder.path());
    const QString name = title.isEmpty() ? QGuiApplication::applicationDisplayName() : title;
    const QString file = unusedFile(folder, fileName(name) + Machine::current().now().toString(" yyyy-MM-dd HHmmss"));
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(file);
        printer.setDocName(name);
        setSheet(printer, m_pageWidth, m_pageHeight);
        if (!paintPages(pages, printer)) {
            QFile::remove(file);
            refuse(file);
        }
    }
    Machine::current().openDocument(file);
}

QStringList Printers()
{
    return Machine::current().printerNames();
}
