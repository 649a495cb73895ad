#pragma once

/// \file
/// How a form does something once the event under way has been handled.

#include <QEvent>

#include <functional>

class QObject;

namespace melvark {

/// Has `call` run from the event loop, after the events that are queued already; not when `context` is gone by then. It
/// is entered as it is: what may throw is guarded by the caller.
///
/// Qt's own queued calls are not told from one another. These are, because a host that lets Qt paint while a call of a
/// form waits for the database must not let the form act in the middle of it: it holds such an event (an event filter
/// of the application sees it) and posts one of the same type to the same receiver when the form goes on.
void CallLater(QObject* context, std::function<void()> call);

/// The type of the events that deliver these calls.
QEvent::Type LaterCallEvent();

} // namespace melvark
