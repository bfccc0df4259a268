// Qt's messages of one thread gathered instead of passed on: a decoder's complaint about a photo
// belongs to that photo's report, not to the log or the terminal.
#pragma once

#include <QStringList>

class ThreadMessages
{
public:
    // Warnings and criticals that the calling thread sends from now until destruction are kept
    // here; other threads, other levels and notes about colour profiles go on to the handler
    // installed before.
    ThreadMessages();
    ~ThreadMessages();

    ThreadMessages(const ThreadMessages&) = delete;
    ThreadMessages& operator=(const ThreadMessages&) = delete;

    const QStringList& messages() const { return gathered; }

private:
    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& message);

    QStringList gathered;
    ThreadMessages* outer = nullptr;
};
