// The running application by COM, against an automation server in a program of its own.
#include <filesystem>
#include <fstream>
#include <thread>

#include "activex/registro.h"
#include "activex/variante.h"
#include "modelo/rutas.h"

namespace calvento {
namespace {

/// The server beside this program, started with an environment and ended with the object.
class Servidor {
 public:
  explicit Servidor(const std::string& orden = "") {
    std::wstring linea = L"\"" + programa().wstring() + L"\" " + enAncho(orden);
    STARTUPINFOW inicio{};
    inicio.cb = sizeof inicio;
    EXPECT_TRUE(::CreateProcessW(nullptr, linea.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &inicio, &p_));
    if (!orden.empty()) ::WaitForSingleObject(p_.hProcess, 10000);
  }
  Servidor(const Servidor&) = delete;
  Servidor& operator=(const Servidor&) = delete;
  ~Servidor() {
    ::TerminateProcess(p_.hProcess, 0);
    ::WaitForSingleObject(p_.hProcess, 10000);
    ::CloseHandle(p_.hThread), ::CloseHandle(p_.hProcess);
  }
  static std::filesystem::path programa() {
    wchar_t yo[MAX_PATH];
    ::GetModuleFileNameW(nullptr, yo, MAX_PATH);
    return std::filesystem::path(yo).parent_path() / L"servidor_cad.exe";
  }

 private:
  PROCESS_INFORMATION p_{};
};

class Com : public testing::Test {
 protected:
  Com() {
    if (sistema->registrada(claseCad)) return;  // an application of this machine: not to be drawn into
    mia = true;
    const Servidor registrar("--registrar");
  }
  ~Com() override {
    if (mia) const Servidor borrar("--borrar");
  }
  void SetUp() override {
    if (!mia) GTEST_SKIP() << claseCad << " is installed here";
  }
  /// Sends a design to a server with this in its environment; the message of the window, and the calls.
  std::pair<std::string, std::vector<std::string>> exportar(DisenoExportable& d, ConexionCad& dxf,
                                                            const char* variable = "CALVENTO_FALLA",
                                                            const char* valor = "") {
    const std::string archivo = carpeta.en("registro.txt");
    ::SetEnvironmentVariableW(L"CALVENTO_REGISTRO", enAncho(archivo).c_str());
    ::SetEnvironmentVariableW(enAncho(variable).c_str(), *valor == '\0' ? nullptr : enAncho(valor).c_str());
    const Servidor servidor;
    ConexionActiveX activex(*sistema);
    for (int i = 0; i < 200 && activex.presencia() != ConexionAplicacion::Presencia::abierta; ++i) ::Sleep(50);
    EXPECT_EQ(activex.presencia(), ConexionAplicacion::Presencia::abierta);
    const std::string motivo = d.exportar({dxf, &activex});
    std::ifstream f(comoRuta(archivo));
    std::vector<std::string> lineas;
    for (std::string l; std::getline(f, l);)
      if (l.find("Rotation = 0") != l.size() - 12 && l.find("Rotation = -0") != l.size() - 13) lineas.push_back(l);
    return {motivo, lineas};
  }

  const std::unique_ptr<SistemaObjetos> sistema = objetosDelSistema();
  const CarpetaPrueba carpeta;
  bool mia = false;
};

TEST_F(Com, TheServerIsAskedForWhatTheDxfHoldsOfEveryExample) {
  int n = 0;
  for (const auto& f : std::filesystem::directory_iterator(RAIZ_PROYECTO "/ejemplos")) {
    const std::string ext = f.path().extension().string();
    if (ext != ".cvr" && ext != ".cvi" && ext != ".cvv") continue;
    SCOPED_TRACE(f.path().string());
    DisenoExportable d(comoTexto(f.path()));
    ConexionFija dxf(carpeta.en("a" + std::to_string(++n) + ".dxf"));
    ASSERT_EQ(d.exportar(dxf), "");
    // in one of them the application is busy now and then
    const auto [motivo, llamadas] = exportar(d, dxf, "CALVENTO_OCUPADA", n == 1 ? "100" : "");
    EXPECT_EQ(motivo, "");
    EXPECT_EQ(llamadas, llamadasDe(dxf.dibujo.datos()));
  }
  EXPECT_GE(n, 10);
}

TEST_F(Com, AServerThatFailsInTheMiddleAndNoneAtAll) {
  DisenoExportable d(RAIZ_PROYECTO "/ejemplos/01-rapida-un-tramo.cvr");
  ConexionFija dxf(carpeta.en("a.dxf"));
  d.dialogos.esperaFallo("Problemas con la conexión");
  const auto [motivo, llamadas] = exportar(d, dxf, "CALVENTO_FALLA", "100");
  EXPECT_EQ(motivo.find("La aplicación no hace "), 0U) << motivo;
  EXPECT_NE(motivo.find(": La cota está bloqueada (0x80020009)"), std::string::npos) << motivo;
  EXPECT_EQ(llamadas.size(), 99U);

  ConexionActiveX activex(*sistema);
  EXPECT_EQ(activex.presencia(), ConexionAplicacion::Presencia::instalada);
  EXPECT_THROW(activex.obtener(), FalloCad);
  { const Servidor borrar("--borrar"); }
  EXPECT_EQ(activex.presencia(), ConexionAplicacion::Presencia::ninguna);
  EXPECT_EQ(activex.crear(), nullptr);
  EXPECT_NE(activex.error().find("No se puede abrir una aplicación"), std::string::npos) << activex.error();
}

}  // namespace
}  // namespace calvento
