#pragma once

#include <stdexcept>
#include <string>
#include <vector>

// What the export asks of a CAD application, and nothing beyond it. Coordinates and sizes in drawing units (metres),
// angles in radians. Every operation fails with FalloCad where the application does not answer.

namespace calvento {

/// The application cannot be reached or does not do what it is asked; what() is a short Spanish text.
class FalloCad : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct PuntoCad {
  double x = 0;
  double y = 0;
  double z = 0;
};

/// An entity of the drawing. What a call to add one returns serves until the next one is added.
class EntidadCad {
 public:
  virtual ~EntidadCad() = default;
  virtual void Layer(const std::string& capa) = 0;
};

class TextoCad : public EntidadCad {
 public:
  virtual void Rotation(double radianes) = 0;
};

/// A dimension whose text is the distance that it measures.
class CotaCad : public EntidadCad {
 public:
  virtual void ArrowheadSize(double) = 0;
  virtual void ExtensionLineExtend(double) = 0;  ///< beyond the dimension line
  virtual void ExtensionLineOffset(double) = 0;  ///< between the measured point and the line
  virtual void TextHeight(double) = 0;
  virtual void VerticalTextPosition(int) = 0;  ///< 0: in the dimension line, which leaves room for it; 1: over it
};

class CapaCad {
 public:
  virtual ~CapaCad() = default;
  virtual void color(int indice) = 0;  ///< of the 255 colours of the CAD palette
};

class EspacioModelo {
 public:
  virtual ~EspacioModelo() = default;
  /// A text that begins on its base line at a point.
  virtual TextoCad& AddText(const std::string& texto, const PuntoCad& en, double altura) = 0;
  virtual EntidadCad& AddLine(const PuntoCad& a, const PuntoCad& b) = 0;
  /// The vertices one behind the other, x, y, z of each; at least two.
  virtual EntidadCad& AddPolyline(const std::vector<double>& vertices) = 0;
  virtual EntidadCad& AddCircle(const PuntoCad& centro, double radio) = 0;
  /// The distance between two points, on a line through the text position.
  virtual CotaCad& AddDimAligned(const PuntoCad& a, const PuntoCad& b, const PuntoCad& texto) = 0;
};

class DocumentoCad {
 public:
  virtual ~DocumentoCad() = default;
  /// The layer of that name, made where there is none.
  virtual CapaCad& capa(const std::string& nombre) = 0;
  virtual EspacioModelo& ModelSpace() = 0;
};

class AplicacionCad {
 public:
  virtual ~AplicacionCad() = default;
  virtual void Visible(bool) = 0;
  virtual DocumentoCad& ActiveDocument() = 0;
  /// The end of a run, also of one that failed half way: what was sent is kept for good.
  virtual void soltar() = 0;
};

/// How an application is reached.
class ConexionCad {
 public:
  virtual ~ConexionCad() = default;
  /// Attaches to what is open; nullptr with an error set where there is nothing.
  virtual AplicacionCad* obtener() = 0;
  /// Starts an instance; nullptr with an error set where that cannot be.
  virtual AplicacionCad* crear() = 0;
  /// Description of the error of the last call, in Spanish; empty where there was none.
  virtual std::string error() const = 0;
};

}  // namespace calvento
