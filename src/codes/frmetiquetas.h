#pragma once

#include "platform/window/Form.h"

#include <memory>

namespace Ui {
class frmetiquetas;
}

/// What goes on a label, and the place on a partly used sheet; 0 is no place at all.
struct LabelChoice
{
    bool Mostrar_Numero = false;
    bool Mostrar_Barras = false;
    int Linha_Inicial = 0;
    int Coluna_Inicial = 0;
};

/// Asks where on a sheet of labels to begin and, while a label is under way, what to print on it.
class frmetiquetas : public Form
{
    Q_OBJECT

public:
    frmetiquetas();
    ~frmetiquetas() override;

    /// Without a label under way the window asks for the place alone.
    void setEtiqueta_Em_Andamento(bool underWay);
    /// Says so when no reader will take this code from its bars.
    void setCode(const QString &code);

signals:
    /// The attendant accepted; a window that goes without it was cancelled.
    void confirmed(const LabelChoice &choice);

protected:
    void Form_Load() override;
    void Form_Activate() override;

private:
    void cmdok_Click();

    std::unique_ptr<Ui::frmetiquetas> ui;
    bool Etiqueta_Em_Andamento = false;
};
