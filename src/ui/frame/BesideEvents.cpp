#include "ui/frame/BesideEvents.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QThread>
#include <chrono>
#include <exception>
#include <future>
#include <system_error>
#include <thread>

namespace vorlan {

namespace {

/// A shorter piece is waited for: most commands end before an event could be missed.
constexpr std::chrono::milliseconds kWithoutEvents{2};

}  // namespace

void doBesideEvents(const std::function<void()>& piece) {
    std::packaged_task<void()> task(piece);
    std::future<void> result = task.get_future();
    const auto work = [&task, events = QAbstractEventDispatcher::instance()] {
        task();
        events->wakeUp();
    };
    std::jthread thread;
    try {
        thread = std::jthread(work);
    } catch (const std::system_error&) {
        // No thread to be had: the window waits.
        work();
    }
    const auto ended = [&](std::chrono::milliseconds wait) {
        return result.wait_for(wait) == std::future_status::ready;
    };
    if (!ended(kWithoutEvents)) {
        while (!ended({})) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
    }
    result.get();
}

bool isInThreadOf(const QObject& object) {
    return QThread::currentThread() == object.thread();
}

void callInThreadOf(QObject& object, const std::function<void()>& function) {
    if (isInThreadOf(object)) {
        return function();
    }
    QMetaObject::invokeMethod(&object, function, Qt::BlockingQueuedConnection);
}

}  // namespace vorlan
