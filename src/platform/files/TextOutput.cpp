#include "platform/files/TextOutput.h"

#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/files/Paths.h"
#include "platform/files/PortFile.h"
#include "platform/text/Windows1252.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>

namespace {
// A printer that is off line holds the windows for ten seconds once, not for ever and not at every line.
constexpr int waitMilliseconds = 50;
constexpr int mostWaits = 200;

int openChosenFile(const QString &name)
{
    const QByteArray path = QFile::encodeName(resolveIgnoringCase(name));
    const int descriptor =
        open(path.constData(), O_WRONLY | O_CREAT | O_TRUNC | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666);
    struct stat status = {};
    // A pipe whose reader leaves would end the program.
    if (descriptor >= 0 && fstat(descriptor, &status) == 0 && !S_ISFIFO(status.st_mode))
        return descriptor;
    const QString why = descriptor < 0 ? qt_error_string(errno) : "A pipe";
    if (descriptor >= 0)
        close(descriptor);
    throw RunTimeError(ErrorNumber::PathAccess, why + ": " + name);
}
} // namespace

void TextOutput::Open(const QString &name)
{
    m_file.close();
    const int port = portNumber(name);
    use(port > 0 ? openPrinterPort(port) : openChosenFile(name));
}

void TextOutput::OpenPort(const QString &name)
{
    m_file.close();
    use(openPortFile(name));
}

void TextOutput::use(int descriptor)
{
    m_waitsLeft = mostWaits;
    // Nothing stays in a buffer, so that a printer out of paper or a full disk shows at the line it refuses.
    m_file.open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle);
}

bool TextOutput::wait()
{
    if (m_waitsLeft == 0)
        return false;
    --m_waitsLeft;
    Machine::current().sleep(waitMilliseconds);
    return true;
}

void TextOutput::Print(const QString &line)
{
    if (!m_file.isOpen())
        throw RunTimeError(ErrorNumber::BadFileName, "No file is open for output");
    const QByteArray bytes = toWindows1252(line) + "\r\n";
    for (QByteArrayView rest = bytes; !rest.isEmpty();) {
        const ssize_t taken = write(m_file.handle(), rest.data(), static_cast<std::size_t>(rest.size()));
        if (taken > 0)
            rest = rest.sliced(taken);
        else if (taken == 0 || (errno != EINTR && (errno != EAGAIN || !wait())))
            throw RunTimeError(ErrorNumber::DeviceUnavailable, qt_error_string(errno));
    }
}

void TextOutput::Close()
{
    if (!m_file.isOpen())
        return;
    // To close a serial line waits for half a minute if its device takes nothing.
    int queued = 0;
    bool taken = true;
    while (taken && ioctl(m_file.handle(), TIOCOUTQ, &queued) == 0 && queued > 0)
        taken = wait();
    if (!taken)
        tcflush(m_file.handle(), TCOFLUSH);
    m_file.close();
    if (!taken || m_file.error() != QFileDevice::NoError)
        throw RunTimeError(ErrorNumber::DeviceUnavailable, m_file.errorString());
}

void Linhas_Em_Branco(int count, TextOutput &file)
{
    for (int line = 0; line < count; ++line)
        OnErrorResumeNext([&] { file.Print(); });
}
