#pragma once

#include <QHash>
#include <QMap>
#include <QString>
#include <QStringList>

/// What became of one kind of work.
struct Figures
{
    int tried = 0;
    int told = 0;   ///< of these the terminal told that they were done
    int stored = 0; ///< of all that was tried
    int half = 0;   ///< stored in a part
    int lost = 0;   ///< told as done, and not stored whole
};

/// Everything that the terminals tried and told, held against what the café's files hold.
class Ledger
{
public:
    /// How a told and not stored work counts: where statements fail, the windows tell their success all the same.
    enum class Loss
    {
        IsDamage,
        IsCounted
    };

    explicit Ledger(const QString &cafe);

    void take(const QStringList &journal);
    /// Reads the files and settles what was taken since the last time; whatever was settled before must be as it was.
    QMap<QString, Figures> compare(Loss loss);

    /// What should never be, one line each.
    const QStringList &damage() const { return m_damage; }
    void addDamage(const QString &what) { m_damage.append(what); }
    /// Boxes that were shown and told of no success, and second presses of a button.
    int otherBoxes() const { return m_otherBoxes; }
    int pressedAgain() const { return m_pressedAgain; }
    /// Lines of sales without their change of stock, and changes of stock without their line.
    int oneOfTwo() const { return m_oneOfTwo; }

private:
    struct Stored;
    struct Claim
    {
        QString kind;
        int serial = 0;
        bool told = false;
        /// A sign for each part, in the order of their writing: "1" when it is stored; empty until it was looked for.
        QString found;
    };
    /// A value that is written again and again: what it may be now.
    struct Value
    {
        QStringList possible;
        int tried = 0;
        int told = 0;
        bool lastWasTold = true;
    };

    Stored readFiles() const;
    static QString partsOf(const Claim &claim, const Stored &stored);
    void settle(Claim &claim, const QString &parts, Loss loss, Figures &figures);
    void settleValues(const Stored &stored, Loss loss, QMap<QString, Figures> &figures);
    void settleStock(const Stored &stored, const QList<int> &freshSales, Loss loss);

    QString m_cafe;
    QList<Claim> m_claims;
    QHash<QString, Value> m_values;
    /// How far the stock of a product is behind its sales, for lines whose second statement never ran.
    QHash<QString, double> m_behind;
    QHash<QString, double> m_firstStock;
    QStringList m_damage;
    int m_otherBoxes = 0;
    int m_pressedAgain = 0;
    int m_oneOfTwo = 0;
};
