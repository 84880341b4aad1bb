#pragma once

#include <functional>

class QObject;

namespace vorlan {

/// Does a piece of work in a thread of its own while this thread, that of the window, takes its events. Returns when
/// the piece has ended; what it threw is thrown here. A piece that ends at once lets no event in between.
void doBesideEvents(const std::function<void()>& piece);

/// Whether the caller is in the thread of the object, where windows may be touched.
bool isInThreadOf(const QObject& object);

/// Calls the function in the thread of the object, from any thread, and waits until it has returned.
void callInThreadOf(QObject& object, const std::function<void()>& function);

}  // namespace vorlan
