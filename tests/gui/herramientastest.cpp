#include "bancoventanas.h"
#include "gui/airehumedo/aperturaairehumedo.h"
#include "gui/airehumedo/frmairehumedo.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

namespace kelvora {

using prueba::BancoVentanas;
using prueba::Boton;

namespace {

void ConAireHumedo(BancoVentanas& b) {
    auto* aire = new AperturaAireHumedo(b.marco, b.contexto, b.prompter);
    b.fabrica.AireHumedo = std::bind_front(&AperturaAireHumedo::AireHumedo, aire);
    b.PonerFabrica();
}

frmAireHumedo* AbrirAireHumedo(BancoVentanas& b) {
    prueba::Accion(&b.marco, "mnuHAireHumedo")->trigger();
    return qobject_cast<frmAireHumedo*>(b.marco.VentanaActiva());
}

QString Texto(const QWidget* ventana, const char* caja) {
    return prueba::Control<QLineEdit>(ventana, QString::fromLatin1(caja))->text();
}

}  // namespace

class HerramientasTest : public QObject {
    Q_OBJECT

private slots:
    // Typed values give every other property; "&Aplicar" types four of them into the cold
    // window that was active before, which takes them as its own keys.
    void AireHumedoAplicaEnLaVentanaFria() {
        BancoVentanas b;
        ConAireHumedo(b);
        frmDatosEntrada* fria = b.Nueva(13);
        frmDatosEntrada* caliente = b.Nueva(1);
        b.marco.findChild<QMdiArea*>()->setActiveSubWindow(
                qobject_cast<QMdiSubWindow*>(fria->parentWidget()));
        frmAireHumedo* aire = AbrirAireHumedo(b);
        QVERIFY(aire != nullptr);
        QCOMPARE(prueba::Ventanas(b.marco).size(), 3);
        QVERIFY(!Boton(aire, "cmdAplicar")->isEnabled());

        prueba::Escribir(aire, QStringLiteral("txtSeco"), QStringLiteral("80"));
        prueba::Escribir(aire, QStringLiteral("txtHumedad"), QStringLiteral("50"));
        QCOMPARE(Texto(aire, "txtRocio"), QStringLiteral("59.71"));
        QVERIFY(prueba::Control<QLineEdit>(aire, QStringLiteral("txtRocio"))->isReadOnly());
        QVERIFY(Boton(aire, "cmdAplicar")->isEnabled());

        QTest::mouseClick(Boton(aire, "cmdAplicar"), Qt::LeftButton);
        QCOMPARE(b.marco.VentanaActiva(), fria);
        QCOMPARE(prueba::Caja(fria, 2)->text(), QStringLiteral("80.0"));
        QCOMPARE(prueba::Caja(fria, 3)->text(), Texto(aire, "txtBulboHumedo"));
        QCOMPARE(prueba::Caja(fria, 4)->text(), QStringLiteral("59.71"));
        QCOMPARE(prueba::Caja(fria, 5)->text(), QStringLiteral("50.0"));
        QCOMPARE(prueba::Desacuerdo(*fria), QString());

        // A bad value names its box and leaves no number to apply.
        prueba::Escribir(aire, QStringLiteral("txtHumedad"), QStringLiteral("150"));
        QCOMPARE(
                prueba::Control<QLabel>(aire, QStringLiteral("lblEstado"))->text(),
                QStringLiteral("La Humedad Relativa debe ser mayor que 0 % y no mayor que 100 %."));
        QCOMPARE(Texto(aire, "txtRocio"), QString());
        QVERIFY(!Boton(aire, "cmdAplicar")->isEnabled());

        // A hot window active before it: nothing to apply into.
        prueba::Escribir(aire, QStringLiteral("txtHumedad"), QStringLiteral("40"));
        b.marco.findChild<QMdiArea*>()->setActiveSubWindow(
                qobject_cast<QMdiSubWindow*>(caliente->parentWidget()));
        AbrirAireHumedo(b);
        QVERIFY(!Boton(aire, "cmdAplicar")->isEnabled());

        QTest::mouseClick(Boton(aire, "cmdCerrar"), Qt::LeftButton);
        BancoVentanas::Esperar();
        QCOMPARE(prueba::Ventanas(b.marco).size(), 2);
    }
};

}  // namespace kelvora

QTEST_MAIN(kelvora::HerramientasTest)
#include "herramientastest.moc"
