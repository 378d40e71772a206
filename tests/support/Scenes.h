#pragma once

#include "tests/support/Attendant.h"
#include "tests/support/FakeMachine.h"
#include "tests/support/TestCafe.h"

#include <functional>

class Form;

/// The windows as a busy day leaves them: long names, big totals, and every state that a glance must tell.
class Scenes
{
public:
    using Look = std::function<void(Form &window)>;

    /// A café that speaks one of `languages()`, in a region where that is spoken.
    explicit Scenes(const QString &language, const Attendant::FailureSink &sink = Attendant::failTest);

    static QStringList languages();
    /// The nine windows, each by its name and with all that it can hold.
    static QStringList windows();
    /// Further states, named after the window and the state.
    static QStringList states();

    /// Sets a scene; `look` sees its window while it lasts.
    void play(const QString &scene, const Look &look);

private:
    void playLockedSale(const Look &look);
    QString reservedProduct();

    FakeMachine m_machine;
    TestCafe m_cafe;
    Attendant m_attendant;
};
