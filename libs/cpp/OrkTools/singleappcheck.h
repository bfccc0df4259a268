// Guards against a second instance: the first owns a shared-memory segment and a local server,
// later ones find the segment and hand their message to the first. Both live in a folder only
// the user can enter, and a message goes only to a socket and a process of the same user.
#pragma once

#include <QObject>
#include <QSharedMemory>
#include <QString>

class QLocalServer;

namespace OrkTools {

class SingleAppCheck : public QObject
{
    Q_OBJECT

public:
    explicit SingleAppCheck(const QString& key, QObject* parent = nullptr);

    // True when another instance held the segment at construction.
    bool isRunning() const { return running; }

    // Called in a second instance; true only when the whole message reached the first.
    bool sendMessage(const QString& message);

    // For a segment left behind by a crashed instance: drops it and becomes the first instance.
    // Returns whether this process now owns the segment and listens.
    bool takeOver();

    // The per-user key under which Pelodine's instances meet.
    static QString userKey(const QString& application);

signals:
    void messageReceived(const QString& message);

public slots:
    void slotReceiveMessage();

private:
    bool createSegmentAndListen();

    bool running = false;
    QString folder;
    QString socketPath;
    QSharedMemory sharedMemory;
    QLocalServer* server = nullptr;
};

} // namespace OrkTools
