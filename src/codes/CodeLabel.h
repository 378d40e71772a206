#pragma once

class Form;
class QString;

/// Asks the attendant for the place on the sheet and prints the label of a code there, while `opener` waits. Nothing is
/// printed when the attendant cancels, and a failing printer is passed over: the code is stored by then.
void printCodeLabel(Form &opener, const QString &code);
