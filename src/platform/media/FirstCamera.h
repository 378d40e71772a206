#pragma once

#include <QImage>
#include <QObject>
#include <QTimer>

#include <chrono>

class QProcess;

/// The computer's first camera, in a process of its own: whatever becomes of that, this object stays usable.
class FirstCamera : public QObject
{
    Q_OBJECT

public:
    FirstCamera();
    ~FirstCamera() override;

    /// Waits for the first picture, for 3 seconds at most from when the media library is up; events run meanwhile.
    /// False when none came, or when the camera was closed in the meantime.
    bool open();
    /// Takes a fraction of a second at most, whatever the camera does.
    void close();
    /// The picture of this moment; a null image when the newest one is older than 2 seconds.
    QImage picture() const;

signals:
    void sees(const QImage &picture);
    /// The camera gives no pictures any more. They may come back.
    void seesNothing();
    void settled();

private:
    void start();
    void giveUp();
    void read();
    bool readNext();
    void checkAge();
    void lost();

    /// Null while no process runs.
    QProcess *m_process = nullptr;
    QImage m_picture;
    std::chrono::steady_clock::time_point m_taken;
    bool m_connected = false;
    bool m_dark = false;
    QTimer m_patience;
    QTimer m_ageCheck;
    QTimer m_restart;
};
