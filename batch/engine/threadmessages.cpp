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
    // A colour profile Qt cannot read leaves the pixels whole: the photo is no less readable.
    const bool aboutProfile = qstrcmp(context.category, "qt.gui.icc") == 0;
    if (current && !aboutProfile && (type == QtWarningMsg || type == QtCriticalMsg))
        current->gathered << message;
    else
        passOn(type, context, message);
}
