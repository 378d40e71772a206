#include "drill/Mounts.h"

#include <QFile>

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

namespace {
void writeFile(const char *path, const QByteArray &content)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        file.write(content);
}

QByteArray sameId(unsigned id)
{
    return QByteArray::number(id) + ' ' + QByteArray::number(id) + " 1";
}
} // namespace

bool enterPrivateMounts()
{
    const unsigned user = getuid();
    const unsigned group = getgid();
    if (unshare(CLONE_NEWNS) != 0) {
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0)
            return false;
        writeFile("/proc/self/setgroups", "deny");
        writeFile("/proc/self/uid_map", sameId(user));
        writeFile("/proc/self/gid_map", sameId(group));
    }
    return mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

bool mountSmallDisk(const QString &folder, qint64 bytes)
{
    const QByteArray options = "size=" + QByteArray::number(bytes);
    return mount("tmpfs", QFile::encodeName(folder).constData(), "tmpfs", 0, options.constData()) == 0;
}

bool mountReadOnly(const QString &folder)
{
    const QByteArray path = QFile::encodeName(folder);
    return mount(path.constData(), path.constData(), nullptr, MS_BIND, nullptr) == 0 &&
           mount(nullptr, path.constData(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) == 0;
}

bool unmount(const QString &folder)
{
    // Lazily: somebody may still hold a file below.
    return umount2(QFile::encodeName(folder).constData(), MNT_DETACH) == 0;
}
