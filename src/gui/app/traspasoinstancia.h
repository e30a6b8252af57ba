#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <string>

class QLocalServer;
class QLocalSocket;

namespace kelvora {

/// This user's channel between instances of the program.
QString CanalTraspaso();

/// Hands a file name to the instance listening on the channel and waits for its answer.
/// False when none is listening or anything fails: the caller then starts normally.
bool EnviarArchivoInstanciaPrevia(const QString& canal, const std::string& archivo,
                                  int esperaMs = 3000);

/// The first instance's end of the hand-over: each name received goes to `abrir`.
class ReceptorTraspaso : public QObject {
    Q_OBJECT

public:
    using Abrir = std::function<void(const std::string& archivo)>;

    ReceptorTraspaso(QString canal, Abrir abrir, QObject* padre = nullptr);

    /// Starts listening; false when another instance already does.
    bool Escuchar();
    void Detener();

private:
    void NuevaConexion();
    void Leer(QLocalSocket* socket, std::string& recibido);
    bool CanalOcupado() const;

    QString mCanal;
    Abrir mAbrir;
    QLocalServer* mServidor;
};

}  // namespace kelvora
