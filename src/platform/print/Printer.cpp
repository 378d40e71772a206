#include "platform/print/Printer.h"

#include "platform/base/Err.h"
#include "platform/base/LongWork.h"
#include "platform/base/Machine.h"
#include "platform/print/PagePainter.h"
#include "platform/print/PagePlacing.h"
#include "platform/print/PrintQueue.h"
#include "platform/print/PrinterError.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace {

constexpr double twipsPerColumn = 120;
constexpr double twipsPerLine = 240;

/// A sheet for a document that may use it up to its very edges.
QPageLayout sheetOf(const QSizeF &twips)
{
    const QSizeF points = twips / twipsPerPoint;
    const bool wide = points.width() > points.height();
    const QPageSize size(wide ? points.transposed() : points, QPageSize::Point, {}, QPageSize::FuzzyMatch);
    return {size, wide ? QPageLayout::Landscape : QPageLayout::Portrait, {}};
}

/// The sheet in twips. Paper is measured in whole points.
QRectF areaOf(const QPageLayout &sheet)
{
    return {{}, sheet.fullRect(QPageLayout::Point).size() * twipsPerPoint};
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
    if (m_deviceChooser) {
        m_deviceName = m_deviceChooser();
        // One that got no answer is asked again.
        m_deviceChooser = nullptr;
    }
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
    Document document{std::exchange(m_documentName, {}), std::exchange(m_pages, {}),
                      std::exchange(m_keepsScale, false)};
    m_currentX = m_currentY = 0;
    while (!document.pages.isEmpty() && document.pages.last().isEmpty())
        document.pages.removeLast();
    if (document.pages.isEmpty())
        return;
    const LongWork work;
    const QString device = targetDevice();
    if (device.isEmpty())
        printToFile(document);
    else
        printTo(device, document);
}

int Printer::deviceDotsPerInch() const
{
    int dots = 0;
    if (const QString device = targetDevice(); !device.isEmpty())
        OnErrorResumeNext<ErrorNumber::PrinterError>([&] { dots = PrintQueue(device).dotsPerInch(); });
    return dots;
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

void Printer::printTo(const QString &device, const Document &document) const
{
    PrintQueue queue(device);
    const QSizeF size(m_pageWidth, m_pageHeight);
    const PrinterSheet sheet = queue.takeSheet(size);
    const QPageLayout layout = sheetOf(sheet.size);
    const QTransform placing = placeWithin(areaOf(layout).marginsRemoved(sheet.blankEdges), document.pages,
                                           areaOf(sheetOf(size)), document.keepsScale);
    QBuffer pdf;
    QPdfWriter sheets(&pdf);
    sheets.setPageLayout(layout);
    sheets.setTitle(document.title);
    if (!pdf.open(QBuffer::WriteOnly) || !paintPages(document.pages, sheets, placing))
        raisePrinterError(device);
    queue.print(pdf.data(), document.title);
}

void Printer::printToFile(const Document &document) const
{
    const QDir folder(Machine::current().printoutFolder());
    if (!folder.mkpath("."))
        raisePrinterError(folder.path());
    const QString name = document.title.isEmpty() ? QGuiApplication::applicationDisplayName() : document.title;
    QFile file(unusedFile(folder, fileName(name) + Machine::current().now().toString(" yyyy-MM-dd HHmmss")));
    QPdfWriter sheets(&file);
    sheets.setPageLayout(sheetOf(QSizeF(m_pageWidth, m_pageHeight)));
    sheets.setTitle(name);
    const bool written = file.open(QFile::WriteOnly) && paintPages(document.pages, sheets) && file.flush();
    file.close();
    if (!written || file.error() != QFile::NoError) {
        file.remove();
        raisePrinterError(file.fileName());
    }
    Machine::current().openDocument(file.fileName());
}

QStringList Printers()
{
    return Machine::current().printerNames();
}
