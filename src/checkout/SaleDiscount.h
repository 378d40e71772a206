#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

class ComboBox;
class Label;
class QCheckBox;
class TextBox;
struct SaleLock;

/// The discount of one sale: the rule that applies by itself, the one picked by hand, the value typed, and the totals.
///
/// Both sale windows own one; what differs between them is given as data.
class SaleDiscount : public QObject
{
    Q_OBJECT

public:
    struct Controls
    {
        QCheckBox *chkdesconto;
        TextBox *txtvalor_desconto;
        ComboBox *txtmotivo;
        Label *imgdesconto;
        Label *lbltotal_final;
    };

    struct Texts
    {
        QString section;
        /// Keys of the text and of the title of the box that tells the motive.
        QString unknownMotive;
        QString motiveTitle;
    };

    SaleDiscount(const Controls &controls, const Texts &texts, const SaleLock &lock);

    // The members that both sale windows know by these names.
    double Total_Venda = 0;
    double Total_Final = 0;
    double Valor_Desconto = 0;
    QString Texto_Desconto;
    bool Desconto_Marcado = false;
    bool Motivo_Fixo = false;

    /// Fills the combo with the rules' numbers and selects the café's default motive.
    void Listar_Motivos_Descontos();

    /// Looks for the rule that applies to a total by itself. `valor` is the total as "####0.00"; `conditions` are the
    /// ends of the query, from the group clause on, in the order in which they are tried.
    void TratarDescontosAutomaticos(const QString &valor, const QStringList &conditions);

    /// The order in which rules go before each other, with which each condition ends.
    static QString ruleOrder();

    /// The motive of the rule in the combo.
    QString chosenMotive() const;

    /// The motive that is stored with the sale: eleven hyphens without a ticked discount, though an amount may be left
    /// from before the tick went. False for a discount whose motive has no text.
    bool takeMotive(QString &motivo);

    /// Whether the rule in the combo refuses the total.
    bool ruleRefuses() const;

    /// Forgets the discount of the buyer before: no tick, no amount, the café's default motive.
    void beginAnew();

    /// What a pick in the combo does, called by name when the program sets it or the total has moved.
    void txtmotivo_Click();

    /// Works `Valor_Desconto` and `Total_Final` out anew and shows the final total; nothing while locked.
    void recalculate();

private:
    bool pickRule(const QString &sql);
    /// Number of the rule in the combo, 0 for none.
    double motive() const;
    /// Number of the rule in the combo, as a byte. Raises for a number that is none.
    quint8 motiveCode() const;
    /// The motive of a rule: empty without such a rule, eleven hyphens without any rule in the combo.
    void Validar_Motivo(quint8 codigo, QString &motivo) const;
    void chkdesconto_Click();
    void imgdesconto_Click() const;

    Controls ui;
    Texts m_texts;
    const SaleLock &m_lock;
    int m_defaultMotive = 0;
};
