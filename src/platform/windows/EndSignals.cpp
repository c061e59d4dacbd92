#include "platform/windows/EndSignals.h"

#include "platform/windows/Application.h"

#include <QSocketNotifier>
#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>

namespace {

int wakeUp = -1;

/// Does the little that a signal handler may do: it wakes the event loop, which does the rest.
extern "C" void EndSignal(int)
{
    const quint64 one = 1;
    [[maybe_unused]] const auto written = write(wakeUp, &one, sizeof one);
}

} // namespace

void TakeEndSignals(Application &application)
{
    wakeUp = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (wakeUp < 0)
        return; // the signals end the program as they always did
    const auto *notifier = new QSocketNotifier(wakeUp, QSocketNotifier::Read, &application);
    QObject::connect(notifier, &QSocketNotifier::activated, &application, [&application] {
        quint64 count = 0;
        [[maybe_unused]] const auto taken = read(wakeUp, &count, sizeof count);
        Q_EMIT application.EndRequested();
    });
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction before = {};
        struct sigaction action = {};
        action.sa_handler = EndSignal;
        action.sa_flags = SA_RESTART;
        sigaction(number, nullptr, &before);
        if (before.sa_handler != SIG_IGN)
            sigaction(number, &action, nullptr);
    }
}
