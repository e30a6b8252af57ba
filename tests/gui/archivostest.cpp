#include "bancoventanas.h"
#include "core/datafile/leerarchivo.h"
#include "core/datafile/listadogrilla.h"
#include "core/runtime/codificacion.h"
#include "gui/app/ventanahija.h"
#include "gui/datafile/qtdialogosarchivo.h"
#include "gui/platform/texto.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

namespace kelvora {

using prueba::Accion;
using prueba::BancoVentanas;
using prueba::Caja;
using prueba::Ejemplo;
using prueba::GrillaSinVentanas;

class ArchivosTest : public QObject {
    Q_OBJECT

private slots:
    void guardarComoYVolverAAbrir();
    void guardarResultadosComoListado();
    void mensajesDelLector();
    void preguntaAlCerrar();
    void archivoDeFueraAlIniciarOSoltado();
    void filtrosDelDialogo();

private:
    static QByteArray Contenido(const QString& archivo);
    static QString Copia(const QTemporaryDir& carpeta, const char* ejemplo);
};

QByteArray ArchivosTest::Contenido(const QString& archivo) {
    QFile leido(archivo);
    return leido.open(QIODevice::ReadOnly) ? leido.readAll() : QByteArray();
}

QString ArchivosTest::Copia(const QTemporaryDir& carpeta, const char* ejemplo) {
    const QString copia = carpeta.filePath(QString::fromLatin1(ejemplo));
    QFile::copy(Q(Ejemplo(ejemplo)), copia);
    return copia;
}

void ArchivosTest::guardarComoYVolverAAbrir() {
    QTemporaryDir carpeta;
    BancoVentanas b;
    frmDatosEntrada* v = b.Abrir("velmar80.adk");
    QCOMPARE(FileNameDe(v), Q(Ejemplo("velmar80.adk")));
    QCOMPARE(FileStateDe(v), 1);
    QCOMPARE(Accion(&b.marco, "mnuArchivoRecientes_0")->data().toString(),
             Q(Ejemplo("velmar80.adk")));
    QTest::mouseClick(Caja(v, 1), Qt::LeftButton);
    Caja(v, 1)->selectAll();
    QTest::keyClicks(Caja(v, 1), QStringLiteral("650"));
    QCOMPARE(FileStateDe(v), 2);
    const QString nuevo = carpeta.filePath(QStringLiteral("nuevo.adk"));
    b.dialogos->respuestas = {S(nuevo)};
    Accion(&b.marco, "mnuArchivoGuardarComo")->trigger();
    QCOMPARE(b.dialogos->pedidos.back().extension, std::string("adk"));
    QCOMPARE(b.dialogos->pedidos.back().carpetaInicial, b.contexto.RutaDatos);
    QCOMPARE(FileStateDe(v), 3);
    QCOMPARE(FileNameDe(v), nuevo);
    QVERIFY(Contenido(nuevo).contains("TemperaturaInterior = 650\r\n"));
    QCOMPARE(Accion(&b.marco, "mnuArchivoRecientes_0")->data().toString(), nuevo);
    // Saving again writes the same file without asking.
    Accion(&b.marco, "mnuArchivoGuardar")->trigger();
    QCOMPARE(b.dialogos->pedidos.size(), size_t{1});
    QVERIFY(b.ventanas->LeerArchivo(S(nuevo)));
    auto* leida = qobject_cast<frmDatosEntrada*>(b.marco.VentanaActiva());
    QVERIFY(leida->windowTitle().endsWith(QStringLiteral("[2]")));
    for (int i = 1; i <= 8; ++i) {
        QCOMPARE(Caja(leida, i)->text(), i == 1 ? QStringLiteral("650.0") : Caja(v, i)->text());
    }
    QVERIFY(b.prompter.mensajes.empty());
}

void ArchivosTest::guardarResultadosComoListado() {
    QTemporaryDir carpeta;
    BancoVentanas b;
    frmResultados* r = b.Calcular(b.Abrir("nivara.adk"));
    const QString listado = carpeta.filePath(QStringLiteral("resultados.txt"));
    b.dialogos->respuestas = {S(listado)};
    Accion(&b.marco, "mnuArchivoGuardar")->trigger();
    QCOMPARE(b.dialogos->pedidos.back().extension, std::string("txt"));
    QCOMPARE(Contenido(listado).toStdString(),
             AWindows1252(ListadoGrilla(GrillaSinVentanas(Ejemplo("nivara.adk")), 6)));
    QCOMPARE(FileStateDe(r), 3);
    // A listing is no data file: the recent list keeps the example.
    QCOMPARE(Accion(&b.marco, "mnuArchivoRecientes_0")->data().toString(),
             Q(Ejemplo("nivara.adk")));
}

void ArchivosTest::mensajesDelLector() {
    struct Caso {
        const char* contenido;
        Respuesta respuesta;
        const char* mensaje;
        Icono icono;
        bool ventana;
    };
    const char* sinVelocidad =
            "Tipo = 1\nTemperaturaInterior = 350\nUnidadTemperaturaInterior = °F\n"
            "TemperaturaSuperficieAislamiento = 120\nUnidadTemperaturaSuperficieAislamiento = °F\n"
            "TemperaturaAmbiente = 80\nUnidadTemperaturaAmbiente = °F\n"
            "CodigoMaterialSuperficieAislamiento = 6\nCodigoMaterialSuperficieDesnuda = 1\n";
    // The window's side of the reader's messages, whose texts the core pins: no window, or the
    // question that opens it.
    // clang-format off
    const Caso casos[] = {
        {"",           Respuesta::Aceptar,  "No es posible asociar los datos leidos con alguna ventana de Entrada de Datos.", Icono::Critico,     false},
        {sinVelocidad, Respuesta::Cancelar, "Los siguientes valores no se encontraron:",                                        Icono::Informacion, false},
        {sinVelocidad, Respuesta::Aceptar,  "Los siguientes valores no se encontraron:",                                        Icono::Informacion, true},
    };
    // clang-format on
    QTemporaryDir carpeta;
    for (const Caso& caso : casos) {
        BancoVentanas b;
        const QString archivo = carpeta.filePath(QStringLiteral("leido.adk"));
        QFile escrito(archivo);
        QVERIFY(escrito.open(QIODevice::WriteOnly | QIODevice::Truncate));
        escrito.write(QByteArray::fromStdString(AWindows1252(caso.contenido)));
        escrito.close();
        b.prompter.respuestas = {caso.respuesta};
        QCOMPARE(b.ventanas->LeerArchivo(S(archivo)), caso.ventana);
        QVERIFY(!b.prompter.mensajes.empty());
        QVERIFY2(Q(b.prompter.mensajes.front().texto).startsWith(QString::fromUtf8(caso.mensaje)),
                 b.prompter.mensajes.front().texto.c_str());
        QCOMPARE(b.prompter.mensajes.front().icono, caso.icono);
        QCOMPARE(prueba::Ventanas(b.marco).size(), caso.ventana ? 1 : 0);
    }
}

void ArchivosTest::preguntaAlCerrar() {
    struct Caso {
        bool deArchivo;
        bool cambiada;
        bool opcion;
        Respuesta respuesta;
        bool pregunta;
        bool cerrada;
        bool guardada;
    };
    // clang-format off
    const Caso casos[] = {
        {true,  true,  true,  Respuesta::Cancelar, true,  false, false},
        {true,  true,  false, Respuesta::No,       true,  true,  false},
        {true,  true,  true,  Respuesta::Si,       true,  true,  true},
        {true,  false, true,  Respuesta::Cancelar, false, true,  false},
        {false, true,  true,  Respuesta::No,       true,  true,  false},
        {false, true,  false, Respuesta::Cancelar, false, true,  false},
    };
    // clang-format on
    QTemporaryDir carpeta;
    for (const Caso& caso : casos) {
        BancoVentanas b;
        if (b.contexto.PreguntarAntesDeCerrarVentana != caso.opcion) {
            Accion(&b.marco, "mnuAOPreguntar")->trigger();
        }
        const QString archivo = Copia(carpeta, "velmar80.adk");
        frmDatosEntrada* v = nullptr;
        if (caso.deArchivo) {
            QVERIFY(b.ventanas->LeerArchivo(S(archivo)));
            v = qobject_cast<frmDatosEntrada*>(b.marco.VentanaActiva());
        } else {
            v = b.Nueva(1);
            const std::pair<int, const char*> datos[] = {{1, "600"}, {2, "130"}, {3, "80"},
                                                         {4, "5"},   {5, "6"},   {7, "1"}};
            for (const auto& [i, texto] : datos) {
                QTest::keyClicks(Caja(v, i), QString::fromLatin1(texto));
            }
        }
        if (caso.cambiada && caso.deArchivo) {
            QTest::keyClicks(Caja(v, 1), QStringLiteral("1"));
        }
        const QString caption = v->windowTitle();
        const QByteArray antes = Contenido(archivo);
        b.prompter.respuestas = {caso.respuesta};
        Accion(&b.marco, "mnuArchivoCerrar")->trigger();
        b.Esperar();
        QCOMPARE(b.prompter.mensajes.size(), size_t{caso.pregunta});
        if (caso.pregunta) {
            const Mensaje& pregunta = b.prompter.mensajes.front();
            const QString nombre = caso.deArchivo ? QStringLiteral("el archivo '%1'").arg(archivo)
                                                  : QStringLiteral("'%1'").arg(caption);
            QCOMPARE(Q(pregunta.texto),
                     QStringLiteral(
                             "Los datos en %1 han cambiado.\r\n\r\n¿Desea guardar los cambios?")
                             .arg(nombre));
            QCOMPARE(pregunta.botones, Botones::SiNoCancelar);
            QCOMPARE(Q(pregunta.titulo), QStringLiteral("Advertencia"));
        }
        QCOMPARE(prueba::Ventanas(b.marco).isEmpty(), caso.cerrada);
        QCOMPARE(Contenido(archivo) != antes, caso.guardada);
    }
    // The frame asks too, and a Cancelar keeps it open.
    BancoVentanas b;
    frmDatosEntrada* v = b.Abrir("velmar80.adk");
    QTest::keyClicks(Caja(v, 1), QStringLiteral("1"));
    b.prompter.respuestas = {Respuesta::Cancelar};
    QVERIFY(!b.marco.close());
    QCOMPARE(b.prompter.mensajes.size(), size_t{1});
}

void ArchivosTest::archivoDeFueraAlIniciarOSoltado() {
    BancoVentanas b;
    b.marco.AbrirArchivoInicio(Ejemplo("tavelas-poliuretano.adk"));
    QMimeData datos;
    datos.setUrls({QUrl::fromLocalFile(Q(Ejemplo("tavelas-poliuretano.adk"))),
                   QUrl::fromLocalFile(Q(Ejemplo("orbelas.adk")))});
    QDragEnterEvent entrar(QPoint(50, 50), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&b.marco, &entrar);
    QDropEvent soltar(QPointF(50, 50), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&b.marco, &soltar);
    QStringList captions;
    for (const QWidget* hija : b.marco.VentanasHijas()) {
        captions << hija->windowTitle();
    }
    QCOMPARE(captions,
             QStringList({"Cálculo de Espesor Óptimo - Ganancia de Calor - Equipos [1]",
                          "Cálculo de Espesor Óptimo - Ganancia de Calor - Equipos [2]",
                          "Cálculo de Espesor Óptimo - Pérdida de Calor - Tuberías [1]"}));
}

void ArchivosTest::filtrosDelDialogo() {
    QCOMPARE(
            FiltroQt(kFiltroDatos),
            QStringLiteral("Archivo de datos Kelvora (*.adk);;Archivos de Texto (*.txt);;Todos los "
                           "Archivos (*.*)"));
}

}  // namespace kelvora

QTEST_MAIN(kelvora::ArchivosTest)
#include "archivostest.moc"
