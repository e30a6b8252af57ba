#include "bancoventanas.h"
#include "core/runtime/numeros.h"
#include "gui/app/ventanahija.h"
#include "gui/economics/frmanalisiseconomico.h"
#include "gui/platform/texto.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

namespace kelvora {

using prueba::Accion;
using prueba::BancoVentanas;
using prueba::Boton;
using prueba::Caja;
using prueba::Escribir;
using prueba::Hijo;
using prueba::Lista;
using prueba::LocaleTemporal;
using prueba::PrompterGuion;
using prueba::RelojFijo;
using prueba::Seleccionar;

namespace {

constexpr auto kPlanas = TipoEconomico::SuperficiesPlanas;
constexpr auto kCilindricas = TipoEconomico::SuperficiesCilindricas;

// A window shown on its own, active, with the losses of a simple case: flat 200/20, 150/15 and
// 100/10 BTU/pie² h; pipes 50/5 and 30/3 BTU/pie h.
struct Economica {
    explicit Economica(TipoEconomico tipo)
        : ventana(tipo, contexto, prompter, std::make_unique<RelojFijo>(Fecha{2024, 3, 5})) {
        if (tipo == kPlanas) {
            ventana.setVariables({1, {200, 150, 100}, {20, 15, 10}, {}});
        } else {
            ventana.setVariables({8, {50, 30}, {5, 3}, {}});
        }
        ventana.show();
        ventana.activateWindow();
        if (!QTest::qWaitForWindowActive(&ventana)) {
            qFatal("La ventana económica no se activó");
        }
    }

    ContextoAplicacion contexto;
    PrompterGuion prompter;
    frmAnalisisEconomico ventana;
};

QComboBox* ListaCombustible(const QWidget* ventana) {
    return static_cast<QComboBox*>(Hijo(ventana, QStringLiteral("cboCombustibleUtilizado")));
}

// Every orientation 1, 876 hours of a typed fuel of 876 BTU at 1 a unit, efficiency 100 by
// passing through its box: each saving is QSD − QSA.
void Llenar(const frmAnalisisEconomico& v) {
    const VentanaEconomica& d = v.Modelo().Ventana();
    for (const CajaEconomica& caja : d.dimensiones) {
        Escribir(&v, QStringLiteral("txtValor_%1").arg(caja.indice), QStringLiteral("1"));
    }
    Escribir(&v, QStringLiteral("cboHorasTrabajadas"), QStringLiteral("876"));
    Seleccionar(ListaCombustible(&v), QStringLiteral("Otro"));
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Bagazo"));
    Escribir(&v, QStringLiteral("txtValor_%1").arg(d.poder.indice), QStringLiteral("876"));
    Escribir(&v, QStringLiteral("txtValor_%1").arg(d.valor.indice), QStringLiteral("1"));
    QTest::mouseClick(Caja(&v, d.eficiencia.indice), Qt::LeftButton);
}

QStringList Resultados(const frmAnalisisEconomico& v) {
    QStringList textos;
    for (const CajaEconomica& caja : v.Modelo().Ventana().resultados) {
        textos << Caja(&v, caja.indice)->text();
    }
    return textos;
}

QString Foco() {
    QWidget* foco = QApplication::focusWidget();
    return foco != nullptr ? foco->objectName() : QString();
}

}  // namespace

class EconomicoTest : public QObject {
    Q_OBJECT

private slots:
    void controlesDeLasDosVentanas();
    void teclasListasYEtiquetasDelCombustible();
    void comprobacionesConMensajeYFoco();
    void calculoConElTecladoYLaMoneda();
    void cambioDeDatoVaciaResultados();
    void desdeLaVentanaDeResultados();
};

void EconomicoTest::controlesDeLasDosVentanas() {
    struct Caso {
        TipoEconomico tipo;
        const char* nombre;
        const char* caption;
        const char* unidades;
        const char* horas;
    };
    // clang-format off
    const Caso casos[] = {
        {kPlanas,      "frmAnalisisEconomicoSuperficiesPlanas",      "Análisis Económico en Superficies Planas",      "pie²", "3480"},
        {kCilindricas, "frmAnalisisEconomicoSuperficiesCilindricas", "Análisis Económico en Superficies Cilíndricas", "pie",  "5256"},
    };
    // clang-format on
    for (const Caso& c : casos) {
        Economica e(c.tipo);
        const frmAnalisisEconomico& v = e.ventana;
        const VentanaEconomica& d = v.Modelo().Ventana();
        QCOMPARE(v.objectName(), QString::fromLatin1(c.nombre));
        QCOMPARE(v.windowTitle(), QString::fromUtf8(c.caption));
        for (const CajaEconomica& caja : d.Entradas()) {
            auto* etiqueta =
                    v.findChild<QLabel*>(QStringLiteral("lblEtiqueta_%1").arg(caja.indice));
            QCOMPARE(etiqueta->buddy(), Caja(&v, caja.indice));
        }
        for (const CajaEconomica& caja : d.dimensiones) {
            QCOMPARE(Lista(&v, caja.indice)->currentText(), QString::fromUtf8(c.unidades));
        }
        QCOMPARE(Lista(&v, d.valor.indice)->currentText(), QStringLiteral("Pesos"));
        auto* horas = v.findChild<QComboBox*>(QStringLiteral("cboHorasTrabajadas"));
        QVERIFY(horas->isEditable());
        QCOMPARE(horas->currentText(), QString::fromLatin1(c.horas));
        for (const CajaEconomica& caja : d.resultados) {
            QVERIFY(Caja(&v, caja.indice)->isReadOnly());
            QVERIFY(!Caja(&v, caja.indice)->isEnabled());
        }
        QVERIFY(!Boton(&v, "cmdAceptar")->isEnabled());
        QCOMPARE(TagDe(&v), QStringLiteral("0"));
    }
}

void EconomicoTest::teclasListasYEtiquetasDelCombustible() {
    Economica e(kPlanas);
    const frmAnalisisEconomico& v = e.ventana;
    struct Tecleo {
        const char* control;
        const char* teclas;
        const char* texto;
    };
    // A comma is a point and one point a box, no sign; the hours take digits.
    // clang-format off
    const Tecleo tecleos[] = {
        {"txtValor_1",         "1a2,3.4", "12.34"},
        {"txtValor_2",         ".5",      "0.5"},
        {"txtValor_3",         "-7",      "7"},
        {"cboHorasTrabajadas", "8a7b6",   "876"},
    };
    // clang-format on
    for (const Tecleo& t : tecleos) {
        const QString control = QString::fromLatin1(t.control);
        Escribir(&v, control, QString::fromLatin1(t.teclas));
        const auto* lista = qobject_cast<QComboBox*>(Hijo(&v, control));
        const QString texto = lista != nullptr ? lista->currentText()
                                               : static_cast<QLineEdit*>(Hijo(&v, control))->text();
        QCOMPARE(texto, QString::fromLatin1(t.texto));
    }

    struct Caso {
        const char* nombre;
        const char* etiquetaValor;
        const char* etiquetaPoder;
        const char* poder;
        const char* ayudaValor;
    };
    // clang-format off
    const Caso combustibles[] = {
        {"ACPM",              "Valor del co&mbustible por galón:", "&Poder Calorífico (BTU/gal):", "138500",   "Ingrese el valor del combustible utilizado por galón"},
        {"Energia eléctrica", "Valor del co&mbustible por kW h:",  "&Poder Calorífico (BTU/kW h):", "0.000293", "Ingrese el valor del combustible utilizado por kilovatio-hora"},
    };
    // clang-format on
    for (const Caso& c : combustibles) {
        Seleccionar(ListaCombustible(&v), QString::fromUtf8(c.nombre));
        QCOMPARE(v.findChild<QLabel*>(QStringLiteral("lblEtiqueta_7"))->text(),
                 QString::fromUtf8(c.etiquetaValor));
        QCOMPARE(v.findChild<QLabel*>(QStringLiteral("lblEtiqueta_8"))->text(),
                 QString::fromUtf8(c.etiquetaPoder));
        QCOMPARE(Caja(&v, 6)->text(), QString::fromUtf8(c.nombre));
        QCOMPARE(Caja(&v, 8)->text(), QString::fromLatin1(c.poder));
        QVERIFY(!Caja(&v, 6)->isEnabled() && !Caja(&v, 8)->isEnabled());
        QTest::mouseClick(Caja(&v, 7), Qt::LeftButton);
        QCOMPARE(v.findChild<QLabel*>(QStringLiteral("lblEstado"))->text(),
                 QString::fromUtf8(c.ayudaValor));
    }
    Seleccionar(ListaCombustible(&v), QStringLiteral("Otro"));
    QCOMPARE(Foco(), QStringLiteral("txtValor_6"));
    QVERIFY(Caja(&v, 6)->text().isEmpty() && Caja(&v, 8)->text().isEmpty());
    QTest::keyClicks(Caja(&v, 6), QStringLiteral("Le"));
    QKeyEvent enie(QEvent::KeyPress, Qt::Key_Ntilde, Qt::NoModifier, QStringLiteral("ñ"));
    QApplication::sendEvent(Caja(&v, 6), &enie);
    QTest::keyClicks(Caja(&v, 6), QStringLiteral("a 2,5"));
    QCOMPARE(Caja(&v, 6)->text(), QStringLiteral("Leña 2,5"));
    // Passing through the empty efficiency fills it; Enter on a number moves on, past
    // "C&alcular" while the price and the calorific value are missing.
    QVERIFY(Caja(&v, 0)->text().isEmpty());
    QTest::mouseClick(Caja(&v, 0), Qt::LeftButton);
    QCOMPARE(Caja(&v, 0)->text(), QStringLiteral("100"));
    QTest::keyClick(Caja(&v, 0), Qt::Key_Return);
    QCOMPARE(Foco(), QStringLiteral("cmdCancelar"));
    Escribir(&v, QStringLiteral("txtValor_7"), QStringLiteral("2"));
    Escribir(&v, QStringLiteral("txtValor_8"), QStringLiteral("1000"));
    QTest::keyClick(Caja(&v, 8), Qt::Key_Return);
    QCOMPARE(Foco(), QStringLiteral("txtValor_0"));
    QTest::keyClick(Caja(&v, 0), Qt::Key_Return);
    QCOMPARE(Foco(), QStringLiteral("cmdAceptar"));
    QVERIFY(e.prompter.mensajes.empty());
}

void EconomicoTest::comprobacionesConMensajeYFoco() {
    struct Caso {
        TipoEconomico tipo;
        const char* control;
        const char* texto;
        const char* mensaje;
    };
    // The control that is given the text gets the focus back with the message; one per kind of
    // control, the core pins the rest.
    // clang-format off
    const Caso casos[] = {
        {kPlanas,      "txtValor_3",         "0.0",  "El Area superficie plana horizontal cara hacia abajo debe ser mayor que cero."},
        {kPlanas,      "cboHorasTrabajadas", "8761", "El Número de horas trabajadas por el equipo en el año debe estar en el rango [1, 8760]."},
        {kPlanas,      "txtValor_6",         " ",    "Por favor ingrese el Nombre del combustible utilizado."},
        {kCilindricas, "txtValor_2",         "0",    "La Longitud de la tubería horizontal debe ser mayor que cero."},
    };
    // clang-format on
    for (const Caso& c : casos) {
        Economica e(c.tipo);
        Llenar(e.ventana);
        Escribir(&e.ventana, QString::fromLatin1(c.control), QString::fromLatin1(c.texto));
        QTest::mouseClick(Boton(&e.ventana, "cmdAceptar"), Qt::LeftButton);
        QCOMPARE(e.prompter.mensajes.size(), size_t{1});
        const Mensaje& m = e.prompter.mensajes.front();
        QCOMPARE(Q(m.texto), QString::fromUtf8(c.mensaje));
        QVERIFY(m.icono == Icono::Exclamacion);
        QCOMPARE(Q(m.titulo), QStringLiteral("Kelvora"));
        QCOMPARE(Foco(), QString::fromLatin1(c.control));
        QVERIFY(Caja(&e.ventana, e.ventana.Modelo().Ventana().resultados.back().indice)
                        ->text()
                        .isEmpty());
    }
}

void EconomicoTest::calculoConElTecladoYLaMoneda() {
    struct Caso {
        TipoEconomico tipo;
        bool coma;
        const char* resultados;
        const char* enEuros;
    };
    // Savings QSD − QSA: flat 180, 135, 90, total 405; pipes 45, 27, total 72 (exact). The
    // amounts keep four integer digits and the locale's separators.
    // clang-format off
    const Caso casos[] = {
        {kPlanas,      false, "$0,180.0 $0,135.0 $0,090.0 $0,405.0", "€0,180.0 €0,135.0 €0,090.0 €0,405.0"},
        {kPlanas,      true,  "$0.180,0 $0.135,0 $0.090,0 $0.405,0", "€0.180,0 €0.135,0 €0.090,0 €0.405,0"},
        {kCilindricas, false, "$0,045.0 $0,027.0 $0,072.0",          "€0,045.0 €0,027.0 €0,072.0"},
    };
    // clang-format on
    for (const Caso& c : casos) {
        const LocaleTemporal locale(c.coma ? LocaleChars::Espanol() : LocaleChars::Punto());
        Economica e(c.tipo);
        const frmAnalisisEconomico& v = e.ventana;
        Llenar(v);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::AltModifier);
        QCOMPARE(Resultados(v).join(QLatin1Char(' ')), QString::fromUtf8(c.resultados));
        QVERIFY(v.findChild<QGroupBox*>(QStringLiteral("fraResultados"))->isEnabled());
        QCOMPARE(TagDe(&v), QString::fromLatin1(v.Modelo().Ventana().tag));
        // A new currency shows the same numbers at once under its symbol.
        Seleccionar(Lista(&v, v.Modelo().Ventana().valor.indice), QStringLiteral("Euros"));
        QCOMPARE(Resultados(v).join(QLatin1Char(' ')), QString::fromUtf8(c.enEuros));
        QVERIFY(e.prompter.mensajes.empty());
    }
}

void EconomicoTest::cambioDeDatoVaciaResultados() {
    const char* cambios[] = {"txtValor_2", "txtValor_7", "cboHorasTrabajadas"};
    for (const char* control : cambios) {
        Economica e(kPlanas);
        const frmAnalisisEconomico& v = e.ventana;
        Llenar(v);
        QTest::mouseClick(Boton(&v, "cmdAceptar"), Qt::LeftButton);
        QCOMPARE(TagDe(&v), QStringLiteral("3"));
        Escribir(&v, QString::fromLatin1(control), QStringLiteral("2"));
        QCOMPARE(Resultados(v).join(QString()), QString());
        QVERIFY(!v.findChild<QGroupBox*>(QStringLiteral("fraResultados"))->isEnabled());
        QVERIFY(Boton(&v, "cmdAceptar")->isEnabled());
        QCOMPARE(TagDe(&v), QStringLiteral("0"));
    }
}

void EconomicoTest::desdeLaVentanaDeResultados() {
    struct Caso {
        const char* ejemplo;
        const char* caption;
        int orientaciones;
    };
    // clang-format off
    const Caso casos[] = {
        {"velmar80.adk", "Análisis Económico en Superficies Planas - Velmar de 80 kg/m³ [1]", 3},
        {"nivara.adk",   "Análisis Económico en Superficies Cilíndricas - Nivara [1]",        2},
    };
    // clang-format on
    for (const Caso& c : casos) {
        BancoVentanas b;
        frmResultados* resultados = b.Calcular(b.Abrir(c.ejemplo));
        QVERIFY(resultados != nullptr);
        QTest::mouseClick(Boton(resultados, "cmdAnalisisEconomico"), Qt::LeftButton);
        auto* v = qobject_cast<frmAnalisisEconomico*>(b.marco.VentanaActiva());
        QVERIFY(v != nullptr);
        QCOMPARE(v->windowTitle(), QString::fromUtf8(c.caption));
        // The practical block of each orientation: Qdt (offset 15) without, Qt (14) with.
        const Grilla& grilla = resultados->Modelo().MSFG();
        for (int o = 0; o < c.orientaciones; ++o) {
            const int bloque = 2 + 17 * (2 * o + 1);
            QCOMPARE(v->Modelo().QSD(o), Val(grilla.TextMatrix(bloque + 15, 1)));
            QCOMPARE(v->Modelo().QSA(o), Val(grilla.TextMatrix(bloque + 14, 1)));
            QVERIFY(v->Modelo().QSD(o) > v->Modelo().QSA(o));
        }
        Llenar(*v);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::AltModifier);
        QVERIFY(!Caja(v, v->Modelo().Ventana().resultados.back().indice)->text().isEmpty());
        QVERIFY(Accion(&b.marco, "mnuArchivoGuardar")->isEnabled());
        QVERIFY(b.prompter.mensajes.empty());
    }
}

}  // namespace kelvora

QTEST_MAIN(kelvora::EconomicoTest)
#include "economicotest.moc"
