#pragma once

#include "platform/base/Err.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What a target does with any bytes; a broken promise ends the process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

inline void require(bool holds, const char *promise)
{
    if (holds)
        return;
    std::fprintf(stderr, "Broken: %s\n", promise);
    std::abort();
}

/// Number of the failure that an operation raises; 0 for none. Whatever else it throws is a finding by itself.
template <typename Operation>
int errorOf(Operation operation)
{
    try {
        operation();
        return 0;
    } catch (const RunTimeError &error) {
        return error.Number();
    }
}

/// The regions under which the program's texts are read and written.
inline constexpr std::array regions{"pt_BR", "en_US", "C"};

/// An input whose first lines are arguments, so that seeds can be read and written by hand.
class Input
{
public:
    Input(const std::uint8_t *data, std::size_t size)
        : m_rest(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size))
    {
    }

    /// The text up to the next separator, or all that is left.
    QByteArray take(char separator = '\n')
    {
        const qsizetype end = m_rest.indexOf(separator);
        QByteArray part = m_rest.left(end);
        m_rest = end < 0 ? QByteArray() : m_rest.sliced(end + 1);
        return part;
    }
    QString takeText() { return QString::fromUtf8(take()); }
    const QByteArray &rest() const { return m_rest; }

private:
    QByteArray m_rest;
};
