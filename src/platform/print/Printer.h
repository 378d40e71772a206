#pragma once

#include "platform/print/RecordedPage.h"

#include <QStringList>

#include <functional>

/// Units of a position on the sheet.
enum class ScaleMode
{
    Twips,      ///< 1/1440 inch
    Characters, ///< 120 twips across, 240 twips down
};

/// Dimensions of the A4 sheet, in twips.
constexpr int a4Width = 11906;
constexpr int a4Height = 16838;

/// The printer in force. Pages are recorded as texts and boxes, and painted once, when the document ends.
///
/// A printer that leaves a sheet's edges blank gets the document moved, and shrunk where it must be, so that nothing is
/// lost; see `placeWithin`.
///
/// With no printer installed the document becomes a PDF in the folder for printouts, named after the document, and is
/// shown by the desktop.
class Printer
{
public:
    Printer();

    static Printer &current();

    QString DeviceName() const;
    void setDeviceName(const QString &name);
    /// Names the device when it is first needed: looking for printers may wait for the network. An empty answer leaves
    /// the choice to the system.
    void setDeviceChooser(const std::function<QString()> &chooser) { m_deviceChooser = chooser; }

    /// What the next printout is, for the print queue and for the name of a PDF.
    void setDocumentName(const QString &name) { m_documentName = name; }
    /// The next printout goes onto a sheet with cuts in it: it may be moved, but not shrunk.
    void keepScale() { m_keepsScale = true; }

    /// Resolution of the printer that would take a document now; 0 when it doesn't tell, or when there is none.
    int deviceDotsPerInch() const;

    void setFontName(const QString &name);
    void setFontSize(double points);
    void setFontBold(bool bold);
    void setScaleMode(ScaleMode mode) { m_scaleMode = mode; }

    /// Page dimensions of the current paper, in twips.
    int PageWidth() const { return m_pageWidth; }
    int PageHeight() const { return m_pageHeight; }
    void setPageSize(int widthTwips, int heightTwips);

    void setCurrentX(double x) { m_currentX = x; }
    void setCurrentY(double y) { m_currentY = y; }

    /// Puts a text at the current place; the place goes to the start of the next line, or stays behind the text.
    void Print(const QString &text, bool newLine = true);
    /// Fills a box given in the current scale.
    void FillBox(const QRectF &box);

    /// The sheet comes out even if nothing is put on it.
    void StartPage() { page().started = true; }
    void NewPage();
    /// Prints what was recorded. Raises PrinterError when the device refuses; the record is gone in any case.
    void EndDoc();

private:
    QPointF toTwips(QPointF place) const;
    RecordedPage &page();
    QString targetDevice() const;

    /// What was recorded, as one printout.
    struct Document
    {
        QString title;
        QList<RecordedPage> pages;
        bool keepsScale = false;
    };
    void printTo(const QString &device, const Document &document) const;
    void printToFile(const Document &document) const;

    mutable QString m_deviceName;
    mutable std::function<QString()> m_deviceChooser;
    QString m_documentName;
    bool m_keepsScale = false;
    QFont m_font;
    ScaleMode m_scaleMode = ScaleMode::Twips;
    int m_pageWidth = a4Width;
    int m_pageHeight = a4Height;
    double m_currentX = 0;
    double m_currentY = 0;
    QList<RecordedPage> m_pages;
};

/// Device names of the installed printers, in the system's order.
QStringList Printers();
