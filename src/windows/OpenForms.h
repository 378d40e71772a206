#pragma once

#include <QString>

class Form;

/// Whether a window of exactly that name, case included, is loaded.
bool Form_Aberto(const QString &name);
/// Waits until the window is unloaded; events run every 50 ms, at least once.
void Aguardar_Form(const QString &name);
/// Opens a window above all others and waits until it is closed. The opener may have gone with the program meanwhile.
void showAndWait(Form &window);
/// Unloads every window but the administration program's main one, whose name no window here bears.
void Descarregar_Forms();
