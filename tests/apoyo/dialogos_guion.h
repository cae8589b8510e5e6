#pragma once

#include <deque>
#include <gtest/gtest.h>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "plataforma/dialogos.h"

namespace calvento {

/// Boxes answered from a script. Every box that is to appear is prepared in its order; all that appeared are recorded
/// in `dichas`. The test fails when a box appears that was not prepared or differs from the one prepared, and, at the
/// latest when the script goes, when a prepared one did not appear.
///
///     DialogosGuion dialogos;
///     dialogos.esperaFallo("Ingreso de datos incorrectos").responde(true).abre("/tmp/a.cvr");
///
/// An empty text means any text.
class DialogosGuion : public Dialogos {
 public:
  enum class Clase { aviso, fallo, pregunta, abrir, guardar };
  struct Caja {
    Clase clase;
    std::string texto;
    friend bool operator==(const Caja&, const Caja&) = default;
  };

  DialogosGuion() = default;
  DialogosGuion(const DialogosGuion&) = delete;
  DialogosGuion& operator=(const DialogosGuion&) = delete;
  ~DialogosGuion() override { comprobarGastado(); }

  /// A message of the program, or of an error handler.
  DialogosGuion& esperaAviso(std::string texto = {}) { return preparar({Clase::aviso, std::move(texto), {}, {}}); }
  DialogosGuion& esperaFallo(std::string texto = {}) { return preparar({Clase::fallo, std::move(texto), {}, {}}); }
  /// A question, answered Yes or No.
  DialogosGuion& responde(bool si, std::string texto = {}) {
    return preparar({Clase::pregunta, std::move(texto), si, {}});
  }
  /// A file dialog, answered with a path or, with nothing, cancelled.
  DialogosGuion& abre(std::optional<std::string> ruta) { return preparar({Clase::abrir, {}, {}, std::move(ruta)}); }
  DialogosGuion& guarda(std::optional<std::string> ruta) { return preparar({Clase::guardar, {}, {}, std::move(ruta)}); }

  /// Lets boxes of this kind appear unprepared; for runs over random input, where only the kind can be told before.
  DialogosGuion& tolera(Clase clase) {
    toleradas_.insert(clase);
    return *this;
  }

  /// Everything that appeared, in its order; of a file dialog its title.
  std::vector<Caja> dichas;
  /// What the last file dialog was asked for.
  OpcionesArchivo ultimasOpciones;

  /// Fails the test for every prepared box that has not appeared, and forgets them.
  void comprobarGastado() {
    for (const Preparada& p : guion_) ADD_FAILURE() << "prepared " << nombre(p.clase) << " did not appear: " << p.texto;
    guion_.clear();
  }

  void aviso(const std::string& texto) override { aparece(Clase::aviso, texto); }
  void fallo(const std::string& texto) override { aparece(Clase::fallo, texto); }
  bool pregunta(const std::string& texto) override { return aparece(Clase::pregunta, texto).si; }
  std::optional<std::string> abrirArchivo(const OpcionesArchivo& opciones) override {
    ultimasOpciones = opciones;
    return aparece(Clase::abrir, opciones.titulo).ruta;
  }
  std::optional<std::string> guardarArchivo(const OpcionesArchivo& opciones) override {
    ultimasOpciones = opciones;
    return aparece(Clase::guardar, opciones.titulo).ruta;
  }

 private:
  struct Preparada {
    Clase clase;
    std::string texto;
    bool si = false;
    std::optional<std::string> ruta;
  };

  static const char* nombre(Clase clase) {
    static constexpr const char* nombres[] = {"message", "error message", "question", "open dialog", "save dialog"};
    return nombres[static_cast<int>(clase)];
  }

  DialogosGuion& preparar(Preparada p) {
    guion_.push_back(std::move(p));
    return *this;
  }

  Preparada aparece(Clase clase, const std::string& texto) {
    dichas.push_back({clase, texto});
    if (toleradas_.contains(clase)) return {clase, texto, false, {}};
    if (guion_.empty()) {
      ADD_FAILURE() << "unexpected " << nombre(clase) << ": " << texto;
      return {clase, texto, false, {}};
    }
    Preparada p = std::move(guion_.front());
    guion_.pop_front();
    EXPECT_STREQ(nombre(clase), nombre(p.clase)) << "on the box: " << texto;
    if (!p.texto.empty()) {
      EXPECT_EQ(texto, p.texto);
    }
    return p;
  }

  std::deque<Preparada> guion_;
  std::set<Clase> toleradas_;
};

}  // namespace calvento
