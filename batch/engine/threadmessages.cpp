#include "threadmessages.h"

#include <mutex>

namespace {

thread_local ThreadMessages* current = nullptr;
QtMessageHandler passOn = nullptr;

} // namespace

ThreadMessages::ThreadMessages()
    : outer(current)
{
    // Installed once, on top of whatever the program installed before.
    static std::once_flag installed;
    std::call_once(installed, [] { passOn = qInstallMessageHandler(&ThreadMessages::handle); });
    current = this;
}

ThreadMessages::~ThreadMessages()
{
    current = outer;
}

void ThreadMessages::handle(QtMsgType type, const QMessageLogContext& context,
                            const QString& message)
{
    if (current && (type == QtWarningMsg || type == QtCriticalMsg))
        current->gathered << message;
    else
        passOn(type, context, message);
}
