#pragma once

#include <QString>

#include <sys/types.h>

/// Another program that holds a data file for itself, until its time is over or it is let go.
class FileHolder
{
public:
    FileHolder(const QString &file, int milliseconds);
    ~FileHolder();
    FileHolder(const FileHolder &) = delete;
    FileHolder &operator=(const FileHolder &) = delete;

private:
    pid_t m_process;
};
