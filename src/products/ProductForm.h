#pragma once

#include <QList>
#include <QObject>

class TextBox;
struct ProductRecord;
namespace Ui {
class frmcadastro_produtos;
}

/// The boxes of one product: how Enter leads through them, what they must hold, and what empty ones stand for.
class ProductForm : public QObject
{
    Q_OBJECT

public:
    /// Keys of the refusals that a new product and an edited one tell each in its own way.
    struct Refusals
    {
        QString apostrophe;
        QString noStock;
        QString negativeStock;
    };

    explicit ProductForm(Ui::frmcadastro_produtos &window);

    /// Refills the categories and selects the café's default one.
    void listCategories(const QString &standard);
    /// Blanks of the price count as zeros.
    void fillPrice();

    /// False when a value can't be stored, which is told at its box.
    bool testar_valores(const Refusals &refusals);
    ProductRecord record() const;
    void show(const ProductRecord &product);
    /// Empties the boxes for the next product and unticks the service; category and menu stay.
    void clear();
    /// Fields that the reserved product keeps as they are.
    void setReservedEnabled(bool enabled);

private:
    void connectEnterChain();
    void chkserviço_Click();
    void tickService(bool service);

    Ui::frmcadastro_produtos &ui;
    QList<TextBox *> m_boxes;
};
