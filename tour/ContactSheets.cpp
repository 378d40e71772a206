#include "tour/ContactSheets.h"

#include "platform/window/Form.h"
#include "platform/window/Look.h"
#include "tests/support/Scenes.h"
#include "tour/OffscreenScreen.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPalette>
#include <QProcess>
#include <QTextStream>

#include <memory>
#include <vector>

namespace {
constexpr Desktop desktops[] = {{1366, 768, 100},  {1366, 768, 150},  {1366, 768, 200},
                                {1920, 1080, 100}, {1920, 1080, 150}, {1920, 1080, 200}};
constexpr int gap = 16;
constexpr int labelHeight = 28;

QString pictureFile(const QString &folder, const QString &scene, const QString &variant, const QString &desktop)
{
    return QString("%1/%2/%3-%4.png").arg(folder, scene, variant, desktop);
}

QString schemeName(bool dark)
{
    return dark ? "dark" : "light";
}

/// The names of a row of each sheet, from top to bottom.
QStringList variants()
{
    QStringList names;
    for (const QString &language : Scenes::languages())
        for (const bool dark : {false, true})
            names += language + '-' + schemeName(dark);
    return names;
}

/// A process with a screen and a scale of its own.
class DesktopProcess
{
public:
    DesktopProcess(const Desktop &desktop, const QString &folder) : m_screen(desktop.width, desktop.height)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", QString::fromUtf8(m_screen.platform()));
        environment.insert("QT_SCALE_FACTOR", QString::number(desktop.percent / 100.0));
        m_process.setProcessEnvironment(environment);
        m_process.setProcessChannelMode(QProcess::ForwardedChannels);
        m_process.start(QCoreApplication::applicationFilePath(), {"--scenes", folder, desktop.name()});
    }

    bool finished()
    {
        return m_process.waitForFinished(-1) && m_process.exitStatus() == QProcess::NormalExit &&
               m_process.exitCode() == 0;
    }

private:
    OffscreenScreen m_screen;
    QProcess m_process;
};

using Row = std::vector<QImage>;

QImage labelled(const QString &file, const QString &label)
{
    QImage picture(file);
    if (picture.isNull())
        return {};
    const qreal scale = picture.devicePixelRatio();
    picture.setDevicePixelRatio(1);
    if (scale != 1)
        picture = picture.scaled(picture.size() / scale, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QImage cell(picture.size() + QSize(gap, gap + labelHeight), QImage::Format_RGB32);
    cell.fill(Qt::gray);
    QPainter painter(&cell);
    painter.drawImage(0, labelHeight, picture);
    painter.setPen(Qt::black);
    painter.drawText(QRect(0, 0, picture.width(), labelHeight), Qt::AlignVCenter, label);
    return cell;
}

QImage sheetOf(const std::vector<Row> &rows)
{
    QSize size;
    for (const Row &row : rows) {
        int width = 0;
        int height = 0;
        for (const QImage &cell : row) {
            width += cell.width();
            height = std::max(height, cell.height());
        }
        size = QSize(std::max(size.width(), width), std::max(size.height(), 0) + height);
    }
    QImage sheet(size + QSize(gap, gap), QImage::Format_RGB32);
    sheet.fill(Qt::gray);
    QPainter painter(&sheet);
    int top = gap;
    for (const Row &row : rows) {
        int left = gap;
        int height = 0;
        for (const QImage &cell : row) {
            painter.drawImage(left, top, cell);
            left += cell.width();
            height = std::max(height, cell.height());
        }
        top += height;
    }
    return sheet;
}

std::vector<Row> rowsOf(const QString &folder, const QString &window)
{
    std::vector<Row> rows;
    for (const QString &variant : variants()) {
        Row row;
        for (const Desktop &desktop : desktops)
            row.push_back(
                labelled(pictureFile(folder, window, variant, desktop.name()), variant + "  " + desktop.name() + " %"));
        rows.push_back(row);
    }
    for (const QString &state : Scenes::states().filter(window + '-')) {
        Row row;
        for (const bool dark : {false, true}) {
            const QString variant = Scenes::languages().first() + '-' + schemeName(dark);
            for (const Desktop &desktop : desktops)
                if (desktop.percent == 100)
                    row.push_back(labelled(pictureFile(folder, state, variant, desktop.name()),
                                           state + "  " + variant + "  " + desktop.name() + " %"));
        }
        rows.push_back(row);
    }
    return rows;
}
} // namespace

bool drawScenes(const QString &folder, const QString &desktop)
{
    bool sound = true;
    for (const QString &language : Scenes::languages()) {
        Scenes scenes(language, [&](const QString &what, const Place &) {
            QTextStream(stderr) << language << ": " << what << '\n';
            sound = false;
        });
        for (const bool dark : {false, true}) {
            QApplication::setPalette(lookPalette(dark));
            QStringList names = Scenes::windows();
            if (language == Scenes::languages().first() && qApp->devicePixelRatio() == 1)
                names += Scenes::states();
            for (const QString &scene : std::as_const(names)) {
                const QString file = pictureFile(folder, scene, language + '-' + schemeName(dark), desktop);
                QDir().mkpath(QFileInfo(file).path());
                scenes.play(scene, [&](Form &window) {
                    QCoreApplication::processEvents();
                    sound = window.grab().save(file) && sound;
                });
            }
        }
    }
    return sound;
}

bool drawContactSheets(const QString &folder)
{
    std::vector<std::unique_ptr<DesktopProcess>> processes;
    for (const Desktop &desktop : desktops)
        processes.push_back(std::make_unique<DesktopProcess>(desktop, folder + "/scenes"));
    bool sound = true;
    for (const auto &process : processes)
        sound = process->finished() && sound;
    for (const QString &window : Scenes::windows())
        sound = sheetOf(rowsOf(folder + "/scenes", window)).save(folder + "/sheet-" + window + ".png") && sound;
    return sound;
}
