#pragma once

#include "platform/window/Prompts.h"

/// The program as it stands after its start on a café; whoever is at the counter says yes to everything.
class Program : public PromptService
{
public:
    explicit Program(const QString &cafe);
    ~Program() override;
    Q_DISABLE_COPY_MOVE(Program)

    int message(const QString &, int style, const QString &) override { return style & vbYesNo ? vbYes : vbOK; }
    QString openFile(const FileDialog &) override { return {}; }
    QString saveFile(const FileDialog &) override { return {}; }
};
