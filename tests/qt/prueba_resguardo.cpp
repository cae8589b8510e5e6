// What was typed is there again: after a killed program, a window that was left, a full disk.
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QProcess>
#include <QScopeGuard>
#include <QTextStream>

#include "apoyo/carpeta_prueba.h"
#include "apoyo/disco_lleno.h"
#include "qt/cadena.h"
#include "qt/escritorio.h"
#include "qt/senales_sistema.h"

namespace calvento {
namespace {

struct Campo {
  const char *ventana, *nombre;
};
constexpr std::array campos = {Campo{"Form10", "Text5"}, Campo{"Form10", "Text8"}, Campo{"Form10", "Text26"},
                               Campo{"Form2", "Text6"}, Campo{"Form2", "Text9"}};  // no project keeps the last one

qint64 ahora() {
  using namespace std::chrono;
  return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

/// The user's folder, before the program looks for it.
struct Casa {
  Casa() { qputenv("CALVENTO_DATOS", carpeta.en("datos").c_str()); }
  CarpetaPrueba carpeta;
};

class Resguardada : protected Casa, public EnElEscritorio {
 protected:
  void SetUp() override {
    EnElEscritorio::SetUp();
    quitarAcercaDe();
  }
  void abrirRapida() {
    elegir("frmMain", "mnrapida");
    QTest::qWait(20);
  }
  void escribir(const char* nombre, const char* texto) {
    campo("Form10", nombre)->setFocus();
    campo("Form10", nombre)->selectAll();
    QTest::keyClicks(campo("Form10", nombre), QLatin1String(texto));
  }
  std::string texto(const char* nombre) { return deQt(campo("Form10", nombre)->text()); }
  std::string nota() { return deQt(vista("Form10")->findChild<QLabel*>("sbStatusBar_nota")->text()); }
  void tecla(Qt::Key cual) {
    QTest::keyClick(campo("Form10", "Text5"), cual, Qt::ControlModifier);
    QTest::qWait(10);
  }
};

TEST_F(Resguardada, UnProgramaMatadoPierdeUnSegundoALoMas) {
  const int muertes =
      qEnvironmentVariableIntValue("CALVENTO_MUERTES") > 0 ? qEnvironmentVariableIntValue("CALVENTO_MUERTES") : 2;
  std::mt19937 azar(static_cast<unsigned>(ahora()));
  for (int i = 0; i < muertes; ++i) {
    qputenv("CALVENTO_DATOS", carpeta.en("datos" + std::to_string(i)).c_str());
    QProcess otro;
    otro.start(QCoreApplication::applicationFilePath(), {"--teclear"});
    ASSERT_TRUE(otro.waitForReadyRead(20000));
    const int vida = std::uniform_int_distribution(1200, 4000)(azar);
    QTest::qWait(vida);
    // told to end by the system it loses nothing at all
    const bool avisado = i % 2 == 1 && QSysInfo::productType() != "windows";
    avisado ? otro.terminate() : otro.kill();
    const qint64 muerte = ahora();
    otro.waitForFinished();
    std::map<int, int> guardado;  // the last number in each field a second before the end, and half one for the disk
    for (const QString& renglon : QString::fromUtf8(otro.readAllStandardOutput()).split(u'\n')) {
      const QStringList p = renglon.split(u' ');
      if (p.size() == 3 && (avisado || p[0].toLongLong() < muerte - 1500)) guardado[p[1].toInt()] = p[2].toInt();
    }
    SCOPED_TRACE("killed after " + std::to_string(vida) + " ms");
    DialogosGuion cajas;
    Programa segundo(cajas);
    segundo.aplicacion.mostrar("frmMain");
    segundo.aplicacion.mostrar("Form10");
    segundo.aplicacion.mostrar("Form2");
    QTest::qWait(20);
    const auto en = [&](const Campo& c) {
      return segundo.sistema.vista(c.ventana)->findChild<QLineEdit*>(QLatin1String(c.nombre))->text().toInt();
    };
    const auto* rapida = segundo.sistema.vista("Form10");
    if (!guardado.empty()) {
      const auto* nota = rapida->findChild<QLabel*>("sbStatusBar_nota");
      EXPECT_TRUE(QTest::qWaitFor([&] { return nota->text().startsWith("Hay datos sin guardar de hoy "); }, 2000));
    }
    for (QMenu* m : rapida->findChildren<QMenu*>())
      if (m->title() == "&Recuperar") {
        emit m->aboutToShow();
        m->actions()[0]->trigger();
      }
    EXPECT_EQ(rapida->findChild<QLabel*>("sbStatusBar_nota")->text(), "") << "it was done";
    for (const auto& [cual, numero] : guardado)
      EXPECT_GE(en(campos[static_cast<std::size_t>(cual)]), numero) << campos[static_cast<std::size_t>(cual)].nombre;
  }
}

TEST_F(Resguardada, LasCopiasDeUnProgramaQueCorreSonSuyas) {
  abrirRapida();
  escribir("Text5", "3.75");
  QTest::qWait(1100);
  namespace fs = std::filesystem;
  for (const bool deHaceHoras : {false, true}) {
    DialogosGuion cajas;
    Programa otro(cajas);
    for (const char* ventana : {"frmMain", "Form10"}) otro.aplicacion.mostrar(ventana);
    QTest::qWait(20);
    EXPECT_EQ(otro.sistema.vista("Form10")->findChild<QLabel*>("sbStatusBar_nota")->text(), "")
        << "also the very first copy in a new folder is that of a program that runs, " << deHaceHoras;
    for (const auto& e : fs::directory_iterator(carpeta.en("datos/recuperar")))
      fs::last_write_time(e.path(), fs::file_time_type::clock::now() - std::chrono::hours(5));
  }
}

TEST(Resguardo, LaHoraSeDiceComoEnElHabla) {
  const auto dicha = [](const QDate& dia) {
    return horaDicha(std::chrono::system_clock::from_time_t(QDateTime(dia, QTime(9, 5)).toSecsSinceEpoch()));
  };
  const QDate hoy = QDate::currentDate();
  EXPECT_EQ(dicha(hoy), "hoy 9:05");
  EXPECT_EQ(dicha(hoy.addDays(-1)), "ayer 9:05");
  EXPECT_EQ(dicha(QDate(2019, 3, 7)), "7/3/2019 9:05");
  const QDate antes(hoy.year(), hoy.dayOfYear() > 2 ? 1 : 12, 1);  // of this year, neither today nor yesterday
  EXPECT_EQ(dicha(antes), antes.month() == 1 ? "1/1 9:05" : "1/12 9:05");
}

TEST_F(Resguardada, UnaCopiaQueNoSePuedeEscribirSeDiceUnaVezYNoEstorba) {
  abrirRapida();
  {
#ifdef _WIN32  // no limit for a file's size there: a file in the folder's place
    QFile estorbo(aQt(carpeta.en("datos")));
    ASSERT_TRUE(estorbo.open(QIODevice::WriteOnly));
    const auto fuera = qScopeGuard([&] { estorbo.remove(); });
#else
    const DiscoLleno lleno(8);
#endif
    escribir("Text5", "1.5");
    QTest::qWait(1100);
    EXPECT_TRUE(nota().starts_with("Sin copia de seguridad: ") && nota().find('/') == std::string::npos) << nota();
    vista("Form10")->findChild<QLabel*>("sbStatusBar_nota")->clear();
    escribir("Text8", "0.015");
    QTest::qWait(1100);
    EXPECT_EQ(nota(), "");
  }
  escribir("Text5", "1.6");
  elegir("Form10", "mnnuevo");
  std::string copias;
  for (const auto& e : std::filesystem::directory_iterator(carpeta.en("datos/recuperar")))
    copias += e.path().extension().string();
  EXPECT_NE(copias.find(".cvr"), std::string::npos) << "it works again";
#ifndef _WIN32  // where a folder with an open file stays
  // a folder that cannot be made
  QDir(aQt(carpeta.en("datos"))).removeRecursively();
  carpeta.escribir("datos", "");
  escribir("Text5", "1.7");
  elegir("Form10", "mnnuevo");
  QTest::qWait(10);
  EXPECT_TRUE(nota().starts_with("Sin copia de seguridad: ")) << nota();
  tecla(Qt::Key_Z);
  EXPECT_EQ(texto("Text5"), "1.7");
#endif
}

}  // namespace

/// Types growing numbers into the fields of a chute and tells each on its output, with the time in ms: until it is
/// killed.
int teclear(int argc, char** argv) {
  QApplication aplicacion(argc, argv);
  DialogosGuion dialogos;
  Programa programa(dialogos);
  for (const char* ventana : {"frmMain", "Form10", "Form2"}) programa.aplicacion.mostrar(ventana);
  const SenalesSistema senales([&] {
    programa.sistema.guardarCopias();
    std::_Exit(0);
  });
  std::mt19937 azar(static_cast<unsigned>(ahora()));
  for (int numero = 1; numero < 100000; ++numero) {
    const auto cual = static_cast<std::size_t>(azar() % campos.size());
    auto* linea =
        programa.sistema.vista(campos[cual].ventana)->findChild<QLineEdit*>(QLatin1String(campos[cual].nombre));
    linea->selectAll();
    QTest::keyClicks(linea, QString::number(numero));
    std::printf("%lld %d %d\n", static_cast<long long>(ahora()), static_cast<int>(cual), numero);
    std::fflush(stdout);
    QTest::qWait(static_cast<int>(azar() % 60));
  }
  return 0;
}

}  // namespace calvento
