#pragma once

#include <optional>
#include <string>

#include "activex/objeto_remoto.h"
#include "cad/aplicacion_cad.h"
#include "cad/destinos.h"

namespace calvento {

/// The class under which the application registers itself.
inline constexpr const char* claseCad = "AutoCAD.Application.18";

/// The open drawing of a running application, each call passed on to it by the public name of its object model.
class DibujoActiveX : public AplicacionCad, public DocumentoCad, public EspacioModelo {
 public:
  explicit DibujoActiveX(ReferenciaRemota aplicacion) : aplicacion_(std::move(aplicacion)) {}
  DibujoActiveX(const DibujoActiveX&) = delete;
  DibujoActiveX& operator=(const DibujoActiveX&) = delete;

  // AplicacionCad
  void Visible(bool si) override { aplicacion_->poner("Visible", si); }
  DocumentoCad& ActiveDocument() override;
  /// The drawing stays as it is, open and not saved; only the references to it go.
  void soltar() override;

  // DocumentoCad
  CapaCad& capa(const std::string& nombre) override;
  EspacioModelo& ModelSpace() override;

  // EspacioModelo
  TextoCad& AddText(const std::string& texto, const PuntoCad& en, double altura) override;
  EntidadCad& AddLine(const PuntoCad& a, const PuntoCad& b) override;
  EntidadCad& AddPolyline(const std::vector<double>& vertices) override;
  EntidadCad& AddCircle(const PuntoCad& centro, double radio) override;
  CotaCad& AddDimAligned(const PuntoCad& a, const PuntoCad& b, const PuntoCad& texto) override;

 private:
  /// The entity added last, seen as each of the kinds that have something of their own.
  template <class Base>
  class Ultima : public Base {
   public:
    explicit Ultima(ReferenciaRemota& entidad) : entidad_(entidad) {}
    void Layer(const std::string& capa) override { poner("Layer", capa); }

   protected:
    void poner(const char* propiedad, const ValorRemoto& valor) { entidad_->poner(propiedad, valor); }

   private:
    ReferenciaRemota& entidad_;
  };
  struct Cualquiera : Ultima<EntidadCad> {
    using Ultima::Ultima;
  };
  struct Texto : Ultima<TextoCad> {
    using Ultima::Ultima;
    void Rotation(double radianes) override { poner("Rotation", radianes); }
  };
  struct Cota : Ultima<CotaCad> {
    using Ultima::Ultima;
    void ArrowheadSize(double v) override { poner("ArrowheadSize", v); }
    void ExtensionLineExtend(double v) override { poner("ExtensionLineExtend", v); }
    void ExtensionLineOffset(double v) override { poner("ExtensionLineOffset", v); }
    void TextHeight(double v) override { poner("TextHeight", v); }
    void VerticalTextPosition(int v) override { poner("VerticalTextPosition", v); }
  };
  class Capa : public CapaCad {
   public:
    void color(int indice) override { objeto->poner("color", indice); }
    ReferenciaRemota objeto;
  };

  void anadir(const char* metodo, const std::vector<ValorRemoto>& argumentos);

  ReferenciaRemota aplicacion_, documento_, espacio_, ultima_;
  Cualquiera entidad_{ultima_};
  Texto texto_{ultima_};
  Cota cota_{ultima_};
  Capa capa_;
};

/// Reaches the application that runs, or starts one.
class ConexionActiveX : public ConexionAplicacion {
 public:
  explicit ConexionActiveX(SistemaObjetos& sistema) : sistema_(sistema) {}

  Presencia presencia() override;
  /// Fails with FalloCad where none runs: it is the user who opens the drawing to send to. A running one that cannot be
  /// talked to is an error, behind which one is started.
  AplicacionCad* obtener() override;
  AplicacionCad* crear() override;
  std::string error() const override { return error_; }

 private:
  AplicacionCad* dibujoDe(ReferenciaRemota aplicacion);

  SistemaObjetos& sistema_;
  std::optional<DibujoActiveX> dibujo_;
  std::string error_;
};

}  // namespace calvento
