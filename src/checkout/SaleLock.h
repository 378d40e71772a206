#pragma once

#include <QObject>

#include <type_traits>

/// The lock of a sale window. While a sale is being confirmed it is on, and what the window does unless locked is left
/// undone.
struct SaleLock
{
    bool Bloqueio_Desconto = false;

    /// Connects as a QObject does, to a handler that a signal doesn't reach while the lock is on.
    template <typename Sender, typename Signal, typename Handler>
    void connect(const Sender *sender, Signal signal, const QObject *receiver, Handler handler) const
    {
        QObject::connect(sender, signal, receiver, [this, handler](auto &&...values) {
            if (Bloqueio_Desconto)
                return;
            if constexpr (std::is_invocable_v<Handler>)
                handler();
            else
                handler(values...);
        });
    }
};
