#pragma once

#include "tests/support/Willing.h"

/// The program as it stands after its start on a café; whoever is at the counter says yes to everything.
class Program : public Willing
{
public:
    explicit Program(const QString &cafe);
    ~Program() override;
    Q_DISABLE_COPY_MOVE(Program)
};
