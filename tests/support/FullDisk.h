#pragma once

#include <csignal>

#include <sys/resource.h>

/// As long as it lives, no file of this process grows beyond a few bytes, whoever runs the test.
class FullDisk
{
public:
    explicit FullDisk(rlim_t freeBytes = 4096)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_usual);
        const rlimit tight{freeBytes, m_usual.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tight);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &m_usual); }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit m_usual{};
};
