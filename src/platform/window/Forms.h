#pragma once

#include "platform/window/Form.h"

#include <QList>

#include <memory>

/// The collection of loaded windows, in the order in which they were loaded.
class Forms
{
public:
    static QList<Form *> loaded();

    /// The one window of this kind, made and loaded when it isn't there yet.
    template <typename Window>
    static Window &use()
    {
        for (Form *form : loaded())
            if (auto *window = qobject_cast<Window *>(form))
                return *window;
        return static_cast<Window &>(adopt(std::make_unique<Window>()));
    }

private:
    friend class Form;

    static Form &adopt(std::unique_ptr<Form> form);
    static void retire(Form *form);
    static bool becomesActive(Form *form);
};

/// Stands wherever events run inside a routine. While one lives, unloaded windows keep their memory, since a routine of
/// theirs may be among those that wait.
class EventPump
{
public:
    EventPump();
    ~EventPump();
    Q_DISABLE_COPY_MOVE(EventPump)
};

/// What becomes of keys and clicks that wait while events run.
enum class WaitingInput
{
    Runs,
    Stays, ///< they keep their order behind the event that is being handled, as a scanner's keys must
};

/// Lets the events run that wait; a routine may be entered again meanwhile.
void DoEvents(WaitingInput input = WaitingInput::Runs);
