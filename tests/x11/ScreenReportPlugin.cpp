#include "x11/ScreenReportPlugin.h"

#include "x11/ScreenReport.h"

#include <QJsonDocument>
#include <QLocalServer>
#include <QLocalSocket>

namespace quillmere::test {

namespace {

void answer(QLocalSocket& socket) {
    while (socket.canReadLine()) {
        socket.readLine();
        socket.write(QJsonDocument(screenReport()).toJson(QJsonDocument::Compact) + '\n');
    }
}

} // namespace

QObject* ScreenReportPlugin::create(const QString& /*name*/, const QString& socket) {
    auto* server = new QLocalServer;
    connect(server, &QLocalServer::newConnection, server, [server] {
        QLocalSocket* asker = server->nextPendingConnection();
        connect(asker, &QLocalSocket::readyRead, asker, [asker] { answer(*asker); });
    });
    if (!server->listen(socket)) qFatal("no screen report at %s", qPrintable(socket));
    return server;
}

} // namespace quillmere::test
