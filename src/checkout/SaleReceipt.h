#pragma once

#include "checkout/ReceiptDevice.h"

#include <QString>

#include <functional>

/// The receipt of one sale, in one or two copies, numbered through `inf.rcb`.
///
/// Both sale windows print through it; what differs between them is given as data.
class SaleReceipt
{
public:
    /// Language keys, as one window knows them.
    struct Keys
    {
        QString section;
        QString dayNumber;
        QString runningNumber;
        QString printerDate;
        QString portDate;
        QString taxNumber;
        QString district;
        QString customer;
        QString noCustomer;
        QString total;
        QString discount;
        QString paid;
        /// Empty where a receipt tells no change.
        QString change;
    };

    struct Content
    {
        QString customer;
        bool withoutCustomer = false;
        /// Shown behind the key of the total as it stands.
        QString total;
        /// The discount as a number's text; empty counts as "0".
        QString discount;
        /// The motive in words, asked for only when there is a discount.
        std::function<QString()> motive;
        double paid = 0;
        /// Shown behind the key of the change as it stands.
        QString change;
        /// What was sold, printed from the receipt's current line on; it leaves `linha()` on the line behind it.
        std::function<void(SaleReceipt &)> details;
    };

    explicit SaleReceipt(const Keys &keys);

    /// Prints the sale on the configured device. The numbers are used up only when no error stands at the end.
    void Gerar_Recibo(const Content &content);

    ReceiptDevice &device() { return m_device; }
    int &linha() { return m_linha; }
    /// A text of the window's section.
    QString text(const QString &key) const;
    /// To be called after each line of the details: a full sheet goes on with a new one and its heading.
    void lineDone(const Content &content);

private:
    void Info_Comprovante(const Content &content);
    void Cabeçalho_Recibo(const Content &content);
    bool headingIsDue() const;
    void numberReceipt();
    void printHeading(const Content &content);
    void printCompany();
    void printTotals(const Content &content);
    void closeCopy();

    Keys m_keys;
    ReceiptDevice m_device;
    QString m_arquivo;
    QString Data_Recibo;
    QString Hora_Recibo;
    QString m_numero;
    double m_id = 0;
    double m_idTotal = 0;
    int m_linha = 0;
    int m_linhaInicial = 0;
    bool m_segundaVia = false;
};
