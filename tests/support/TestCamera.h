#pragma once

#include <QImage>
#include <QString>
#include <QTemporaryDir>

/// A camera that the media library lists, instead of those of the computer; it sees what a test puts before it.
class TestCamera
{
public:
    TestCamera();

    /// From the opening on, or from the next picture on, it sees this; the size is its only mode.
    void see(const QImage &image);
    /// The same as a compressed file's content.
    void seeJpeg(const QImage &image);
    /// What happens to it from a picture on: "crash", "hang", "unplugged", "ended", "late" (by `to` microseconds),
    /// "silent" (up to picture `to`), "busy", "driver hangs".
    void suffer(const QString &event, int from = 0, int to = 0);
    /// A chequered pattern in any of these modes, in the media library's own words.
    void offer(const QString &modes);

    /// The cameras of the computer, the first one first.
    static void plug(const QList<const TestCamera *> &cameras);

private:
    void show(const QByteArray &content, const QString &mode);

    QTemporaryDir m_folder;
    QString m_modes{"video/x-raw"};
    QString m_file;
    QString m_event{"||"};
};
