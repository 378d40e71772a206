#pragma once

#include <QString>

/// A terminal of its own, worked by an attendant who says yes to everything. It tells on its output when it is "ready"
/// (or "closed", when its doors stay shut), and in lines with tabs what she tries and what the windows tell her is
/// done.
///
/// At a line such as "sale,code 120" on its input it does these works in turn for so many seconds, each once at least,
/// and tells that it is "idle". At the work "held" it tells of the "question" of a sale, answers it at the next line on
/// its input, and goes on with presses; it tells how many milliseconds each "press" froze the windows. At the work
/// "webcam" it opens the webcam window, captures, and tells how many milliseconds the closing took; at "watch" it looks
/// for 5 seconds and tells how many percent of a processor that took. `firstSerial` numbers what it sells and whom it
/// registers.
int runTerminal(const QString &programFolder, int firstSerial);

/// The products that every sale takes one line of; the quantity is the sale's serial number.
inline const QString drilledProducts[] = {"BALA", "CAFÉ"};

/// The name of the customer with a serial number.
QString drilledCustomer(int serial);
