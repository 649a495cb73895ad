#pragma once

/// \file
/// How every slot, timer and event handler is entered.
///
/// No exception may leave one of them: Qt ends the process. Each entry point of a form runs its work through
/// melvark::Guarded, or is connected with melvark::ConnectGuarded; the error goes to the host's error display and the
/// event loop goes on. Constructors and workflows are not guarded: their errors travel to their caller.

#include <QObject>

#include <exception>
#include <functional>
#include <type_traits>
#include <utility>

namespace melvark {

/// Hands the error to the current host's error display; writes it to standard error when no host is installed.
void ReportError(std::exception_ptr error) noexcept;

/// Runs `work`; reports an exception that leaves it. True when none did.
template <class Work>
bool Guarded(Work&& work) noexcept {
    try {
        std::invoke(std::forward<Work>(work));
        return true;
    } catch (...) {
        ReportError(std::current_exception());
        return false;
    }
}

/// Calls the handler with all arguments of a signal, or with none when it takes none.
template <class Handler, class... Args>
void InvokeHandler(Handler& handler, Args&&... args) {
    if constexpr (std::is_invocable_v<Handler&, Args...>) {
        std::invoke(handler, std::forward<Args>(args)...);
    } else {
        static_assert(std::is_invocable_v<Handler&>, "the handler takes all arguments of the signal, or none");
        std::invoke(handler);
    }
}

/// QObject::connect whose handler is guarded. `handler` is a member function of the receiver or any callable; it takes
/// all arguments of the signal, or none. The connection ends with the receiver.
template <class Sender, class Signal, class Receiver, class Handler>
QMetaObject::Connection ConnectGuarded(Sender* sender, Signal signal, Receiver* receiver, Handler handler,
                                       Qt::ConnectionType type = Qt::AutoConnection) {
    if constexpr (std::is_member_function_pointer_v<Handler>) {
        return ConnectGuarded(sender, signal, receiver, std::bind_front(handler, receiver), type);
    } else {
        auto guarded = [handler = std::move(handler)](auto&&... args) mutable {
            Guarded([&] { InvokeHandler(handler, std::forward<decltype(args)>(args)...); });
        };
        return QObject::connect(sender, signal, receiver, std::move(guarded), type);
    }
}

} // namespace melvark
