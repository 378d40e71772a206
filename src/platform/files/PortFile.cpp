#include "platform/files/PortFile.h"

#include "platform/base/Err.h"
#include "platform/base/Machine.h"
#include "platform/files/Paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScopeGuard>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

namespace {
constexpr int withoutWaiting = O_WRONLY | O_NONBLOCK | O_NOCTTY | O_NOFOLLOW | O_CLOEXEC;
/// The sticky bit tells a file that was made here from all others: this system gives it no meaning on files and nothing
/// else sets it, every attendant's terminal sees it, and it goes along where a copy or an archive keeps the rights.
/// Where it is lost the file is refused, which harms nothing.
constexpr mode_t mark = S_ISVTX;
constexpr mode_t newPort = mark | 0660;

[[noreturn]] void refusePort(const QString &name)
{
    throw RunTimeError(ErrorNumber::DeviceUnavailable, "Device unavailable: " + name);
}

/// By their real paths.
bool mayHoldPorts(const QString &folder)
{
    QStringList allowed = Machine::current().portFolders();
    allowed << Machine::current().printoutFolder() << QDir::tempPath();
    return std::any_of(allowed.cbegin(), allowed.cend(), [&](const QString &each) {
        const QString real = QFileInfo(each.trimmed()).canonicalFilePath();
        return !each.trimmed().isEmpty() && !real.isEmpty() && (folder == real || folder.startsWith(real + u'/'));
    });
}

/// Whether an open folder is the one at that path, even if a link has been put into its way meanwhile.
bool isFolderAt(int folder, const QString &path)
{
    return folder >= 0 && QFile::symLinkTarget(QString("/proc/self/fd/%1").arg(folder)) == path;
}

bool isPort(const struct stat &status)
{
    return S_ISCHR(status.st_mode) || (S_ISREG(status.st_mode) && (status.st_mode & mark) != 0);
}
} // namespace

int portNumber(const QString &name)
{
    static const QRegularExpression port("^\\s*LPT([1-9]):?\\s*$", QRegularExpression::CaseInsensitiveOption);
    return port.match(name).captured(1).toInt();
}

int openPrinterPort(int port)
{
    const QByteArray device = QFile::encodeName(Machine::current().portDevice(port));
    // The device is never created: unplugged at this moment, it must not come back as a file of its name.
    const int descriptor = open(device.constData(), O_WRONLY | O_TRUNC | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        refusePort(QString("LPT%1").arg(port));
    return descriptor;
}

int openPortFile(const QString &name)
{
    if (const int port = portNumber(name))
        return openPrinterPort(port);

    const QFileInfo named(resolveIgnoringCase(name));
    const QString existing = named.canonicalFilePath();
    const QFileInfo real(existing.isEmpty() ? named.fileName() : existing);
    const QString path = existing.isEmpty() ? QFileInfo(named.path()).canonicalFilePath() : real.path();
    const int folder = open(QFile::encodeName(path).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    const auto closeFolder = qScopeGuard([&] { close(folder); });
    if (!isFolderAt(folder, path))
        refusePort(name);

    // What isn't a port is not even opened: to open a pipe lets its reader go on, and to close the data file drops its
    // locks.
    const QByteArray file = QFile::encodeName(real.fileName());
    struct stat status = {};
    const bool isNew = fstatat(folder, file.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0;
    const bool isDevice = !isNew && S_ISCHR(status.st_mode);
    if ((!isNew && !isPort(status)) || (!isDevice && !mayHoldPorts(path)))
        refusePort(name);

    const int descriptor = openat(folder, file.constData(), withoutWaiting | (isNew ? O_CREAT | O_EXCL : 0), newPort);
    // It may have been exchanged meanwhile; and where the mark doesn't last the file could never be written anew.
    if (descriptor < 0 || fstat(descriptor, &status) != 0 || !isPort(status) || S_ISCHR(status.st_mode) != isDevice ||
        (!isDevice && ftruncate(descriptor, 0) != 0)) {
        if (descriptor >= 0)
            close(descriptor);
        if (descriptor >= 0 && isNew)
            unlinkat(folder, file.constData(), 0);
        refusePort(name);
    }
    return descriptor;
}
