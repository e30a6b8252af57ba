#include "gui/app/traspasoinstancia.h"

#include "core/app/traspaso.h"
#include "gui/platform/texto.h"

#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>

#include <memory>

namespace kelvora {

namespace {

constexpr int kEsperaCanalMs = 500;

QByteArray Bytes(const std::string& texto) {
    return QByteArray(texto.data(), static_cast<qsizetype>(texto.size()));
}

}  // namespace

QString CanalTraspaso() {
    return Q(NombreCanalTraspaso(S(QDir::home().dirName())));
}

bool EnviarArchivoInstanciaPrevia(const QString& canal, const std::string& archivo, int esperaMs) {
    QLocalSocket socket;
    socket.connectToServer(canal);
    if (!socket.waitForConnected(esperaMs)) {
        return false;
    }
    socket.write(Bytes(CodificarTraspaso(archivo)));
    if (!socket.waitForBytesWritten(esperaMs)) {
        return false;
    }
    QByteArray respuesta;
    const QByteArray esperada = Bytes(RespuestaTraspaso());
    while (respuesta.size() < esperada.size() && socket.waitForReadyRead(esperaMs)) {
        respuesta += socket.readAll();
    }
    return respuesta == esperada;
}

ReceptorTraspaso::ReceptorTraspaso(QString canal, Abrir abrir, QObject* padre)
    : QObject(padre),
      mCanal(std::move(canal)),
      mAbrir(std::move(abrir)),
      mServidor(new QLocalServer(this)) {
    mServidor->setSocketOptions(QLocalServer::UserAccessOption);
    connect(mServidor, &QLocalServer::newConnection, this, &ReceptorTraspaso::NuevaConexion);
}

bool ReceptorTraspaso::Escuchar() {
    // Listening would take the name over from a live instance: ask first.
    if (CanalOcupado()) {
        return false;
    }
    if (mServidor->listen(mCanal)) {
        return true;
    }
    // A channel left behind by an instance that ended badly answers no one.
    QLocalServer::removeServer(mCanal);
    return mServidor->listen(mCanal);
}

void ReceptorTraspaso::Detener() {
    mServidor->close();
}

bool ReceptorTraspaso::CanalOcupado() const {
    QLocalSocket prueba;
    prueba.connectToServer(mCanal);
    return prueba.waitForConnected(kEsperaCanalMs);
}

void ReceptorTraspaso::NuevaConexion() {
    while (QLocalSocket* socket = mServidor->nextPendingConnection()) {
        auto recibido = std::make_shared<std::string>();
        connect(socket, &QLocalSocket::readyRead, this,
                [this, socket, recibido] { Leer(socket, *recibido); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    }
}

void ReceptorTraspaso::Leer(QLocalSocket* socket, std::string& recibido) {
    const QByteArray nuevos = socket->readAll();
    recibido.append(nuevos.constData(), static_cast<size_t>(nuevos.size()));
    const LecturaTraspaso lectura = DecodificarTraspaso(recibido);
    if (lectura.estado == EstadoTraspaso::Incompleto) {
        return;
    }
    if (lectura.estado == EstadoTraspaso::Invalido) {
        socket->abort();
        return;
    }
    socket->write(Bytes(RespuestaTraspaso()));
    socket->flush();
    socket->disconnectFromServer();
    // The sender is answered first, so a message of the reader does not keep it waiting.
    QMetaObject::invokeMethod(
            this, [this, texto = lectura.texto] { mAbrir(texto); }, Qt::QueuedConnection);
}

}  // namespace kelvora
