#pragma once

#include "platform/window/Form.h"

#include <QTimer>

#include <functional>
#include <memory>

class QPushButton;
namespace Ui {
class frmprincipal;
}

/// The window with which the program starts, and the door to its functions. Closing it ends the program.
class frmprincipal : public Form
{
    Q_OBJECT

public:
    frmprincipal();
    ~frmprincipal() override;

    /// Reads language and currency beside the known data file and enables the doors.
    void Carregar();

protected:
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

private:
    struct RefusalTexts
    {
        QString language;
        QString path;
        QString file;
    };
    /// A button, the window behind it, and how it words its refusals.
    struct Door
    {
        QPushButton *button;
        std::function<void()> show;
        RefusalTexts texts;
    };

    void readLanguageName();
    void enableDoors(bool enabled);
    void startBar();
    void stopLoading();
    void temp_Timer();
    void cmdbuscabd_Click();
    void press(const Door &door);
    void enter(const Door &door);

    std::unique_ptr<Ui::frmprincipal> ui;
    QList<Door> m_doors;
    QTimer temp;
    QString ArquivoConfigIni;
    bool CaminhoAlterado = false;
    bool Carregado = false;
};
