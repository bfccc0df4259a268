#include "singleappcheck.h"

#include <QDir>
#include <QFile>
#include <QLocalServer>
#include <QLocalSocket>
#include <QtDebug>

#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace OrkTools {

namespace {
constexpr int timeoutMs = 1000;

// A folder only this user can enter: the runtime folder, or else one of our own in the
// temporary folder, made 0700 and checked, so that nobody else can plant the socket or the
// segment's key file there. Empty when no such folder can be had.
QString privateFolder()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString folder =
        !runtime.isEmpty() ? runtime : QDir::tempPath() + "/pelodine-" + QString::number(getuid());
    const QByteArray path = QFile::encodeName(folder);
    mkdir(path.constData(), 0700);
    struct stat info = {};
    if (lstat(path.constData(), &info) != 0 || !S_ISDIR(info.st_mode) || info.st_uid != getuid() ||
        (info.st_mode & 077) != 0)
        return {};
    return folder;
}

// Whether the file at path is a socket of this user's (a planted file or link is not).
bool isOwnSocket(const QString& path)
{
    struct stat info = {};
    return lstat(QFile::encodeName(path).constData(), &info) == 0 && S_ISSOCK(info.st_mode) &&
           info.st_uid == getuid();
}

// Whether the process at the other end of a connected local socket runs as this user.
bool peerIsThisUser(qintptr descriptor)
{
    struct ucred peer = {};
    socklen_t size = sizeof peer;
    return getsockopt(int(descriptor), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == getuid();
}
} // namespace

SingleAppCheck::SingleAppCheck(const QString& key, QObject* parent)
    : QObject(parent)
    , folder(privateFolder())
    , socketPath(folder + "/" + key)
{
    // Without a private folder there is no safe place to meet: every instance runs alone.
    if (folder.isEmpty()) {
        qWarning() << "Single instance: no private folder for" << key;
        return;
    }
    sharedMemory.setNativeKey(socketPath + ".segment");
    if (sharedMemory.attach(QSharedMemory::ReadWrite)) {
        running = true;
        return;
    }
    running = false;
    createSegmentAndListen();
}

bool SingleAppCheck::createSegmentAndListen()
{
    if (folder.isEmpty() || !sharedMemory.create(1, QSharedMemory::ReadWrite)) {
        qDebug() << "Unable to create single instance.";
        return false;
    }
    server = new QLocalServer(this);
    // Only this user's processes may talk to us.
    server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(server, &QLocalServer::newConnection, this, &SingleAppCheck::slotReceiveMessage);
    // A socket file left by a crashed instance would make listen() fail.
    QLocalServer::removeServer(socketPath);
    if (!server->listen(socketPath))
        qWarning() << "Single instance: cannot listen on" << socketPath << "-"
                   << server->errorString();
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
    if (!running || !isOwnSocket(socketPath))
        return false;
    QLocalSocket socket;
    socket.connectToServer(socketPath, QIODevice::WriteOnly);
    if (!socket.waitForConnected(timeoutMs)) {
        qDebug() << socket.errorString();
        return false;
    }
    if (!peerIsThisUser(socket.socketDescriptor())) {
        qWarning() << "Single instance: the socket" << socketPath << "belongs to another user";
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
    if (!peerIsThisUser(socket->socketDescriptor())) {
        socket->abort();
        socket->deleteLater();
        return;
    }
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
