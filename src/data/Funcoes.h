#pragma once

#include <QString>

class Form;

/// Number of the newest cash period, as last read.
extern double IdCaixa;

bool Tem_Apostrofo(const QString &text);

/// Whether a window of exactly that name, case included, is loaded.
bool Form_Aberto(const QString &name);
/// Waits until the window is unloaded; events run every 50 ms, at least once.
void Aguardar_Form(const QString &name);
/// Opens a window above all others and waits until it is closed. The opener may have gone with the program meanwhile.
void showAndWait(Form &window);
/// Unloads every window but the administration program's main one, whose name no window here bears.
void Descarregar_Forms();

void Salvar_Escala_Impressora();
void Restaurar_Escala_Impressora();

/// Decides on one key in a number box: the key to be typed, or 0.
int Filtrar_Numero(int key, const QString &text, bool negative);

/// The share of `value` that `share` has in `base`, to two places.
double Valor_Proporcional(double share, double base, double value);

/// Plays a wave file unless the café is silenced.
void Tocar_Som(const QString &path);

/// The till's own sound.
void Tocar_Caixa();

/// Currency symbol of the region.
QString Simbolo_Moeda_Regional();

/// Category of a product; "-----" when there is none. Rewrites `CaminhoBD` at each call.
QString Categoria_Do_Produto(const QString &description);
QString Grupo_Do_Cliente(const QString &name);
bool Tem_Link(const QString &name);

/// Reads the newest cash period into `IdCaixa`, 0 when there is none.
void Obter_Ultimo_Caixa();
/// Whether the newest cash period is open.
bool Caixa_Aberto();

bool Tem_Desconto_Fixo(double code);
double Valor_Desconto_Fixo(double code, double total);
/// True when the rule refuses a sale of that value.
bool Desconto_Atendido(quint8 code, const QString &value);
bool Desconto_Libera_Auto(quint8 code);
