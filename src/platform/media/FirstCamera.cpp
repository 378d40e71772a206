#include "platform/media/FirstCamera.h"

#include "platform/base/LongWork.h"
#include "platform/base/Machine.h"
#include "platform/media/CameraFrame.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProcess>

#include <chrono>
#include <csignal>
#include <utility>

namespace {
using namespace std::chrono_literals;

constexpr auto firstPictureWithin = 3s;
/// The media library looks through all of its plugins when it runs for the first time. That isn't the camera's fault,
/// and would begin anew each time if it were cut off.
constexpr auto libraryIsUpWithin = 15s;
constexpr auto oldestPicture = 2s;
constexpr auto ageCheckEach = 250ms;
constexpr auto restartAfter = 2s;
constexpr auto signOfLifeEach = 50ms;
constexpr int reapedWithinMilliseconds = 100;
} // namespace

FirstCamera::FirstCamera()
{
    m_patience.setSingleShot(true);
    m_restart.setSingleShot(true);
    m_restart.setInterval(restartAfter);
    m_ageCheck.setInterval(ageCheckEach);
    m_patience.callOnTimeout(this, &FirstCamera::giveUp);
    m_restart.callOnTimeout(this, &FirstCamera::start);
    m_ageCheck.callOnTimeout(this, &FirstCamera::checkAge);
}

FirstCamera::~FirstCamera()
{
    close();
}

/// What came while the till was busy counts, though nobody has looked yet.
void FirstCamera::giveUp()
{
    if (m_process)
        m_process->waitForReadyRead(0);
    if (!m_connected && !m_patience.isActive())
        close();
}

bool FirstCamera::open()
{
    const LongWork work;
    QTimer sign;
    sign.callOnTimeout([] { LongWork::goOn(); });
    sign.start(signOfLifeEach);
    QEventLoop wait;
    connect(this, &FirstCamera::settled, &wait, &QEventLoop::quit);
    m_patience.start(libraryIsUpWithin);
    start();
    if (m_process)
        wait.exec();
    return m_connected;
}

void FirstCamera::start()
{
    m_process = new QProcess;
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setStandardErrorFile(QProcess::nullDevice());
    connect(m_process, &QProcess::readyReadStandardOutput, this, &FirstCamera::read);
    connect(m_process, &QProcess::stateChanged, this, [this](QProcess::ProcessState state) {
        if (state == QProcess::NotRunning)
            lost();
    });
    m_process->start(Machine::current().cameraProgram(), {QString::number(QCoreApplication::applicationPid())});
    if (m_process && m_process->state() == QProcess::NotRunning)
        lost();
}

void FirstCamera::close()
{
    m_patience.stop();
    m_restart.stop();
    m_ageCheck.stop();
    m_connected = false;
    m_picture = {};
    if (QProcess *process = std::exchange(m_process, nullptr)) {
        process->disconnect();
        // The group is what the media library started, too: its look through a plugin that hangs would never end.
        if (const auto group = static_cast<pid_t>(process->processId()); group > 0)
            ::kill(-group, SIGKILL);
        process->kill();
        // A process that its driver doesn't let go can't be waited for, as the destructor of QProcess would.
        if (process->waitForFinished(reapedWithinMilliseconds) || process->state() == QProcess::NotRunning)
            delete process;
        else
            connect(process, &QProcess::finished, process, &QObject::deleteLater);
    }
    emit settled();
}

QImage FirstCamera::picture() const
{
    return std::chrono::steady_clock::now() - m_taken > oldestPicture ? QImage() : m_picture;
}

void FirstCamera::read()
{
    bool fresh = false;
    while (readNext())
        fresh = true;
    if (!fresh || picture().isNull())
        return;
    m_patience.stop();
    m_connected = true;
    m_dark = false;
    m_ageCheck.start();
    emit sees(m_picture);
    emit settled();
}

/// The next picture, when it is there as a whole.
bool FirstCamera::readNext()
{
    CameraFrame header;
    while (m_process->peek(reinterpret_cast<char *>(&header), sizeof header) == sizeof header) {
        const std::chrono::steady_clock::time_point taken{std::chrono::nanoseconds(header.nanoseconds)};
        if (header.mark != CameraFrame::ownMark || taken > std::chrono::steady_clock::now()) {
            m_process->kill();
            return false;
        }
        if (header.nanoseconds == 0) {
            m_process->skip(sizeof header);
            if (!m_connected)
                m_patience.start(firstPictureWithin);
            continue;
        }
        if (m_process->bytesAvailable() < qint64{sizeof header} + CameraFrame::pictureBytes)
            return false;
        m_process->skip(sizeof header);
        QImage picture(CameraFrame::width, CameraFrame::height, QImage::Format_RGB888);
        m_process->read(reinterpret_cast<char *>(picture.bits()), CameraFrame::pictureBytes);
        m_picture = picture;
        m_taken = taken;
        return true;
    }
    return false;
}

void FirstCamera::checkAge()
{
    if (picture().isNull() && !std::exchange(m_dark, true))
        emit seesNothing();
}

/// The process ended by itself, or was ended: the camera is gone, or can't be used.
void FirstCamera::lost()
{
    std::exchange(m_process, nullptr)->deleteLater();
    m_picture = {};
    if (m_connected) {
        checkAge();
        m_restart.start();
    }
    emit settled();
}
