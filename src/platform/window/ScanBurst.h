#pragma once

#include <QString>

#include <optional>

class QKeyEvent;

/// Tells the keys of a barcode scanner from those of a hand.
///
/// A scan is 8 to 14 digits (EAN-8 to GTIN-14), each pressed at most `LongestGap` behind the one before it, and an
/// Enter or a Tab as close. Whatever else comes in between makes it typing, to its end: a letter, a pause, a key that
/// repeats because it is held, a key without a time. It is the keys' own time stamps that count: keys that waited
/// behind a busy window arrive together, whoever typed them.
class ScanBurst
{
public:
    static constexpr int FewestDigits = 8;
    static constexpr int MostDigits = 14;
    /// Milliseconds from one key to the next. Scanners leave up to 55; a fast hand needs 60 and more.
    static constexpr quint64 LongestGap = 57;

    enum class Verdict
    {
        Typing,  ///< the key was typed, and so were those before it
        Perhaps, ///< the key may belong to a scan, with those before it
        Anew,    ///< the key may begin a scan; those before it were typed
        Scan,    ///< the key ends a scan, whose digits `code` tells
        Rest,    ///< the key belongs to the scan that was just told: a line feed behind its carriage return
    };

    Verdict take(const QKeyEvent &press);
    QString code() const { return m_code; }
    /// The digits so far were typed, and so is what follows them without a pause.
    void giveUp();

private:
    bool isQuick(const QKeyEvent &press);

    QString m_code;
    std::optional<quint64> m_last;
    bool m_typing = false;
    bool m_scanned = false;
    bool m_lineFeedMayFollow = false;
};
