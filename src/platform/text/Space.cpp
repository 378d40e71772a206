#include "platform/text/Space.h"

#include "platform/base/Err.h"

QString Space(qsizetype length)
{
    if (length < 0)
        throw RunTimeError(ErrorNumber::InvalidProcedureCall, "Invalid procedure call");
    return QString(length, ' ');
}
