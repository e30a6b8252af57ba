#include "core/app/contexto.h"
#include "core/app/opciones.h"
#include "gui/platform/qteventpump.h"
#include "gui/platform/qtsettingsstore.h"

#include <QTemporaryDir>
#include <QTest>

namespace kelvora {

class PlataformaTest : public QObject {
    Q_OBJECT

private slots:
    void opcionesSobreviveAlArchivoIni();
    void bombaDetectaVentanaCerrada();
};

void PlataformaTest::opcionesSobreviveAlArchivoIni() {
    QTemporaryDir carpeta;
    const QString archivo = carpeta.filePath(QStringLiteral("Kelvora.ini"));
    ContextoAplicacion escrito;
    escrito.LeerEmisividadBD = false;
    escrito.Pagina.FuenteNombre = "Liberation Mono";
    escrito.Pagina.TamanoPapel = 9;
    {
        QtSettingsStore ajustes(archivo);
        GuardarOpciones(escrito, ajustes);
    }
    QtSettingsStore ajustes(archivo);
    ContextoAplicacion leido;
    LeerOpciones(leido, ajustes);
    QCOMPARE(leido.LeerEmisividadBD, false);
    QCOMPARE(leido.Pagina.FuenteNombre, std::string("Liberation Mono"));
    QCOMPARE(leido.Pagina.TamanoPapel, 9);
    QCOMPARE(ajustes.GetSetting("Kelvora", "ConfigurarPagina", "Tamaño", "x"), std::string("9"));
}

void PlataformaTest::bombaDetectaVentanaCerrada() {
    auto* ventana = new QObject;
    QtEventPump bomba(ventana, 0);
    QVERIFY(bomba.DoEvents());
    delete ventana;
    QVERIFY(!bomba.DoEvents());
}

}  // namespace kelvora

QTEST_MAIN(kelvora::PlataformaTest)
#include "plataformatest.moc"
