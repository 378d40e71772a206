#include "platform/files/TextOutput.h"

#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/files/Paths.h"
#include "platform/text/Windows1252.h"

#include <QRegularExpression>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace {
// A printer that is off line holds the windows for ten seconds once, not for ever and not at every line.
constexpr int WaitMilliseconds = 50;
constexpr int MostWaits = 200;

/// Number of the printer port that a name stands for; 0 for a file's name.
int portNumber(const QString &name)
{
    static const QRegularExpression port("^\\s*LPT([1-9]):?\\s*$", QRegularExpression::CaseInsensitiveOption);
    return port.match(name).captured(1).toInt();
}
} // namespace

void TextOutput::Open(const QString &name)
{
    m_file.close();
    m_waitsLeft = MostWaits;
    // Nothing stays in a buffer, so that a printer out of paper or a full disk shows at the line it refuses.
    constexpr QIODevice::OpenMode Mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
    if (const int port = portNumber(name)) {
        const QByteArray device = QFile::encodeName(Machine::current().portDevice(port));
        // The device is never created: unplugged at this moment, it must not come back as a file of its name.
        const int descriptor = open(device, O_WRONLY | O_TRUNC | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
        if (descriptor < 0 || !m_file.open(descriptor, Mode, QFile::AutoCloseHandle))
            throw RunTimeError(ErrorNumber::DeviceUnavailable, "Device unavailable: " + name);
        return;
    }
    m_file.setFileName(resolveIgnoringCase(name));
    if (!m_file.open(Mode))
        throw RunTimeError(ErrorNumber::PathAccess, m_file.errorString() + ": " + name);
}

void TextOutput::Print(const QString &line)
{
    if (!m_file.isOpen())
        throw RunTimeError(ErrorNumber::BadFileName, "No file is open for output");
    const QByteArray bytes = toWindows1252(line) + "\r\n";
    for (QByteArrayView rest = bytes; !rest.isEmpty();) {
        const ssize_t taken = write(m_file.handle(), rest.data(), static_cast<std::size_t>(rest.size()));
        if (taken > 0) {
            rest = rest.sliced(taken);
            m_waitsLeft = MostWaits;
        } else if (taken < 0 && errno == EAGAIN && m_waitsLeft > 0) {
            --m_waitsLeft;
            Machine::current().sleep(WaitMilliseconds);
        } else if (taken == 0 || errno != EINTR) {
            throw RunTimeError(ErrorNumber::DeviceUnavailable, qt_error_string(errno));
        }
    }
}

void TextOutput::Close()
{
    if (!m_file.isOpen())
        return;
    m_file.close();
    if (m_file.error() != QFileDevice::NoError)
        throw RunTimeError(ErrorNumber::DeviceUnavailable, m_file.errorString());
}
