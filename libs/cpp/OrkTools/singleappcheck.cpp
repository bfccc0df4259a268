#include "singleappcheck.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QtDebug>

#include <unistd.h>

namespace OrkTools {

namespace {
constexpr int timeoutMs = 1000;
}

SingleAppCheck::SingleAppCheck(const QString& key, QObject* parent)
    : QObject(parent)
    , key(key)
    , sharedMemory(key)
{
    if (sharedMemory.attach(QSharedMemory::ReadWrite)) {
        running = true;
        return;
    }
    running = false;
    createSegmentAndListen();
}

bool SingleAppCheck::createSegmentAndListen()
{
    if (!sharedMemory.create(1, QSharedMemory::ReadWrite)) {
        qDebug() << "Unable to create single instance.";
        return false;
    }
    server = new QLocalServer(this);
    // Only this user's processes may talk to us.
    server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(server, &QLocalServer::newConnection, this, &SingleAppCheck::slotReceiveMessage);
    // A socket file left by a crashed instance would make listen() fail.
    QLocalServer::removeServer(key);
    server->listen(key);
    return true;
}

bool SingleAppCheck::takeOver()
{
    if (server)
        return true;
    // Detaching the last attachment removes a segment whose creator has died.
    sharedMemory.detach();
    running = false;
    return createSegmentAndListen();
}

bool SingleAppCheck::sendMessage(const QString& message)
{
    if (!running)
        return false;
    QLocalSocket socket;
    socket.connectToServer(key, QIODevice::WriteOnly);
    if (!socket.waitForConnected(timeoutMs)) {
        qDebug() << socket.errorString();
        return false;
    }
    socket.write(message.toUtf8());
    if (!socket.waitForBytesWritten(timeoutMs)) {
        qDebug() << socket.errorString();
        return false;
    }
    socket.disconnectFromServer();
    return true;
}

void SingleAppCheck::slotReceiveMessage()
{
    QLocalSocket* socket = server->nextPendingConnection();
    if (!socket)
        return;
    if (socket->waitForReadyRead(timeoutMs)) {
        QByteArray data = socket->readAll();
        // The sender may still be flushing a long list of paths.
        while (socket->waitForReadyRead(100))
            data += socket->readAll();
        emit messageReceived(QString::fromUtf8(data));
        socket->disconnectFromServer();
    } else {
        qDebug() << socket->errorString();
    }
    socket->deleteLater();
}

QString SingleAppCheck::userKey(const QString& application)
{
    return application + "-" + QString::number(getuid());
}

} // namespace OrkTools
