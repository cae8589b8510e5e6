#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "cad/aplicacion_cad.h"
#include "cad/entidades_dxf.h"
#include "plataforma/dialogos.h"

namespace calvento {

/// A drawing of a DXF file in the place of an open drawing. It lives in memory and is written whole at the end of each
/// run; a run that cannot be written is forgotten, so that the drawing and its file stay alike.
class DibujoDxf : public AplicacionCad, public DocumentoCad, public EspacioModelo {
 public:
  explicit DibujoDxf(std::string archivo);
  DibujoDxf(const DibujoDxf&) = delete;
  DibujoDxf& operator=(const DibujoDxf&) = delete;
  const DatosDxf& datos() const { return datos_; }
  /// Whether a run has been written.
  bool guardado() const { return guardado_; }

  // AplicacionCad
  void Visible(bool) override {}  // a file is not shown
  DocumentoCad& ActiveDocument() override { return *this; }
  void soltar() override;

  // DocumentoCad
  CapaCad& capa(const std::string& nombre) override;
  EspacioModelo& ModelSpace() override { return *this; }

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
    explicit Ultima(DatosDxf& datos) : datos_(datos) {}
    void Layer(const std::string& capa) override { datos_.entidades.back().capa = capa; }

   protected:
    template <class Forma>
    Forma& forma() {
      return std::get<Forma>(datos_.entidades.back().forma);
    }

   private:
    DatosDxf& datos_;
  };
  struct Cualquiera : Ultima<EntidadCad> {
    using Ultima::Ultima;
  };
  struct Texto : Ultima<TextoCad> {
    using Ultima::Ultima;
    void Rotation(double radianes) override { forma<TextoDxf>().giro = radianes; }
  };
  struct Cota : Ultima<CotaCad> {
    using Ultima::Ultima;
    void ArrowheadSize(double v) override { forma<CotaDxf>().flecha = v; }
    void ExtensionLineExtend(double v) override { forma<CotaDxf>().extension = v; }
    void ExtensionLineOffset(double v) override { forma<CotaDxf>().separacion = v; }
    void TextHeight(double v) override { forma<CotaDxf>().altura = v; }
    void VerticalTextPosition(int v) override { forma<CotaDxf>().posicion = v; }
  };
  class Capa : public CapaCad {
   public:
    explicit Capa(DatosDxf& datos) : datos_(datos) {}
    void color(int indice) override { datos_.capas[cual].second = indice; }
    std::size_t cual = 0;

   private:
    DatosDxf& datos_;
  };

  std::string archivo_;
  DatosDxf datos_;
  std::size_t guardadas_ = 0;  ///< entities that the file holds
  bool guardado_ = false;
  Cualquiera entidad_{datos_};
  Texto texto_{datos_};
  Cota cota_{datos_};
  Capa capa_{datos_};
};

/// Reaches a drawing by asking for its file when a run starts. The drawings of a program's run stay open: naming one
/// again adds to it. A file of that name that the program has not written itself is replaced only after a question.
class ConexionDxf : public ConexionCad {
 public:
  explicit ConexionDxf(Dialogos& dialogos) : dialogos_(dialogos) {}

  AplicacionCad* obtener() override;
  AplicacionCad* crear() override;
  std::string error() const override { return error_; }

 private:
  Dialogos& dialogos_;
  std::map<std::string, DibujoDxf> abiertos_;
  std::string ultimo_;  ///< name offered by the next dialog
  std::string error_;
};

}  // namespace calvento
