#pragma once

#include <QObject>
#include <QString>

struct SaleLock;
namespace Ui {
class frmvenda;
}

/// Finding a product by its name, its internal code or its barcode. An entry of the combo shows the code and carries
/// the description. Nothing else is kept of a product, as other terminals sell and change it meanwhile: a barcode asks
/// for its entry, `Info_Produto` for price and stock to show, and the cart for both once more.
class ProductSearch : public QObject
{
    Q_OBJECT

public:
    ProductSearch(Ui::frmvenda &window, const SaleLock &lock);

    void Listar_Produtos();
    /// Selects the first entry that begins with a text, or whose internal code does; an empty text counts as found.
    bool Buscar_Produtos(const QString &texto);
    /// Description of the entry that `Buscar_Produtos` selected.
    QString foundDescription() const;
    void Info_Produto(const QString &descricao);
    /// Text of the entry of the product with a barcode; empty when there is none.
    QString Retornar_Descrição(const QString &cod_barra);

    /// What a pick in the combo does.
    void cmbprodutos_Click();

    /// Whether a product is chosen and the keyboard stands in its quantity.
    bool waitsForQuantity() const;
    /// Looks a barcode up, as if it had been typed into its box and ended by Enter.
    void lookUp(const QString &cod_barra);
    /// Shows a barcode, selected and with the keyboard, for the attendant to take it or to scan over it.
    void offerCode(const QString &cod_barra);

private:
    /// Index of the first entry that begins with a text, or whose internal code does; -1 for none.
    int entryOf(const QString &texto) const;
    void txtcod_barra_Enter();

    Ui::frmvenda &ui;
    const SaleLock &m_lock;
};
