#include "gui/app/frmaboutbox.h"

#include "core/app/acercade.h"
#include "gui/app/imagenes.h"
#include "gui/platform/texto.h"
#include "ui_frmaboutbox.h"

namespace kelvora {

frmAboutBox::frmAboutBox(QWidget* padre)
    : QDialog(padre), mUi(std::make_unique<Ui::frmAboutBox>()) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    mUi->lblVersion->setText(Q(TextoVersionRevision(VersionActual())));
    mUi->lblFabricante->setText(Q(TextoFabricante()));
    mUi->lblDisclaimer->setText(QString::fromUtf8(kLineaDerechos));
    mUi->picIcon->setPixmap(Logotipo(96));
    connect(mUi->cmdAceptar, &QPushButton::clicked, this, &QDialog::accept);
}

frmAboutBox::~frmAboutBox() = default;

}  // namespace kelvora
