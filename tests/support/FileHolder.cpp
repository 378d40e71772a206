#include "tests/support/FileHolder.h"

#include <QFile>

#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

FileHolder::FileHolder(const QString &file, int milliseconds)
{
    // The bytes that whoever writes the file locks against all others.
    constexpr off_t firstByte = 0x40000000;
    constexpr off_t bytes = 512;
    const QByteArray path = QFile::encodeName(file);
    int told[2];
    if (::pipe(told) != 0)
        qFatal("No pipe");
    m_process = ::fork();
    if (m_process == 0) {
        // Only what is safe in the copy of a process with threads.
        const int descriptor = ::open(path.constData(), O_RDWR);
        struct flock lock = {};
        lock.l_type = F_WRLCK;
        lock.l_start = firstByte;
        lock.l_len = bytes;
        const bool held = ::fcntl(descriptor, F_SETLKW, &lock) == 0 && ::write(told[1], "h", 1) == 1;
        ::close(told[1]);
        ::poll(nullptr, 0, held ? milliseconds : 0);
        ::_exit(0);
    }
    ::close(told[1]);
    char sign = 0;
    const bool held = ::read(told[0], &sign, 1) == 1;
    ::close(told[0]);
    if (!held)
        qFatal("%s cannot be held", path.constData());
}

FileHolder::~FileHolder()
{
    ::kill(m_process, SIGKILL);
    ::waitpid(m_process, nullptr, 0);
}
