#include "gui/platform/qtprompter.h"

#include "core/app/contexto.h"
#include "gui/platform/texto.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include <vector>

namespace kelvora {

namespace {

struct Boton {
    Respuesta respuesta;
    const char* texto;
    QMessageBox::ButtonRole rol;
};

std::vector<Boton> BotonesDe(Botones botones) {
    using R = Respuesta;
    switch (botones) {
        case Botones::AceptarCancelar:
            return {{R::Aceptar, "Aceptar", QMessageBox::AcceptRole},
                    {R::Cancelar, "Cancelar", QMessageBox::RejectRole}};
        case Botones::AnularReintentarIgnorar:
            return {{R::Anular, "Anular", QMessageBox::RejectRole},
                    {R::Reintentar, "Reintentar", QMessageBox::AcceptRole},
                    {R::Ignorar, "Ignorar", QMessageBox::ActionRole}};
        case Botones::SiNoCancelar:
            return {{R::Si, "Sí", QMessageBox::YesRole},
                    {R::No, "No", QMessageBox::NoRole},
                    {R::Cancelar, "Cancelar", QMessageBox::RejectRole}};
        case Botones::SiNo:
            return {{R::Si, "Sí", QMessageBox::YesRole}, {R::No, "No", QMessageBox::NoRole}};
        case Botones::ReintentarCancelar:
            return {{R::Reintentar, "Reintentar", QMessageBox::AcceptRole},
                    {R::Cancelar, "Cancelar", QMessageBox::RejectRole}};
        default:
            return {{R::Aceptar, "Aceptar", QMessageBox::AcceptRole}};
    }
}

// The runtime's line breaks are carriage return and line feed; a label wants line feeds.
QString TextoParaMostrar(const std::string& texto) {
    return Q(texto).replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
}

QMessageBox::Icon IconoDe(Icono icono) {
    switch (icono) {
        case Icono::Critico:
            return QMessageBox::Critical;
        case Icono::Pregunta:
            return QMessageBox::Question;
        case Icono::Exclamacion:
            return QMessageBox::Warning;
        case Icono::Informacion:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

}  // namespace

QtPrompter::QtPrompter(QWidget* padre, AbrirAyuda ayuda) : mPadre(padre), mAyuda(std::move(ayuda)) {
}

Respuesta QtPrompter::MsgBox(const Mensaje& mensaje) {
    const std::vector<Boton> botones = BotonesDe(mensaje.botones);
    while (true) {
        QMessageBox caja(IconoDe(mensaje.icono),
                         Q(mensaje.titulo.empty() ? kTituloAplicacion : mensaje.titulo),
                         TextoParaMostrar(mensaje.texto), QMessageBox::NoButton, mPadre);
        std::vector<QPushButton*> pulsables;
        for (const Boton& b : botones) {
            pulsables.push_back(caja.addButton(QString::fromUtf8(b.texto), b.rol));
        }
        QPushButton* ayuda = mensaje.contextoAyuda != 0 ? caja.addButton(QStringLiteral("Ayuda"),
                                                                         QMessageBox::HelpRole)
                                                        : nullptr;
        const size_t predeterminado = static_cast<size_t>(mensaje.botonPredeterminado - 1);
        caja.setDefaultButton(pulsables.at(std::min(predeterminado, pulsables.size() - 1)));
        if (mensaje.modalSistema) {
            caja.setWindowModality(Qt::ApplicationModal);
        }
        caja.exec();
        // The help button opens its topic and the box stays up.
        if (ayuda != nullptr && caja.clickedButton() == ayuda) {
            if (mAyuda) {
                mAyuda(mensaje.contextoAyuda);
            }
            continue;
        }
        for (size_t i = 0; i < pulsables.size(); ++i) {
            if (caja.clickedButton() == pulsables[i]) {
                return botones[i].respuesta;
            }
        }
        return botones.back().respuesta;
    }
}

std::optional<std::string> QtPrompter::InputBox(const Entrada& entrada) {
    QInputDialog dialogo(mPadre);
    dialogo.setWindowTitle(Q(entrada.titulo.empty() ? kTituloAplicacion : entrada.titulo));
    dialogo.setLabelText(TextoParaMostrar(entrada.mensaje));
    dialogo.setTextValue(Q(entrada.valorInicial));
    dialogo.setOkButtonText(QStringLiteral("Aceptar"));
    dialogo.setCancelButtonText(QStringLiteral("Cancelar"));
    if (dialogo.exec() != QDialog::Accepted) {
        return std::nullopt;
    }
    return S(dialogo.textValue());
}

}  // namespace kelvora
