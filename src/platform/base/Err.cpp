#include "platform/base/Err.h"

namespace {
int lastNumber = 0;
}

RunTimeError::RunTimeError(int number, const QString &text) : std::runtime_error(text.toStdString()), m_number(number)
{
}

int Err::Number()
{
    return lastNumber;
}

void Err::Clear()
{
    lastNumber = 0;
}

void Err::set(const RunTimeError &error)
{
    lastNumber = error.Number();
}
