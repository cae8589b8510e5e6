#pragma once

#include <string>
#include <string_view>

namespace calvento {

/// CSV text, cell by cell. A cell that holds a separator, a quote or a line end is quoted; one that a spreadsheet would
/// take for a formula is no number and begins with an apostrophe.
class TextoCsv {
 public:
  /// `coma`: decimal comma and semicolons between cells, instead of point and commas.
  explicit TextoCsv(bool coma, std::string_view finDeLinea = "\r\n") : finDeLinea_(finDeLinea), coma_(coma) {}

  TextoCsv& texto(std::string_view celda);
  /// With the seven digits of the record; empty for what is no number.
  TextoCsv& numero(double celda);
  /// A text that may be a number with a point: it gets the decimal sign where it is wholly one.
  TextoCsv& valor(std::string_view celda);
  void finDeLinea();

  const std::string& contenido() const { return contenido_; }
  static constexpr std::string_view marcaUtf8 = "\xEF\xBB\xBF";

 private:
  void separar();

  std::string contenido_;
  std::string_view finDeLinea_;
  bool coma_;
  bool primera_ = true;
};

}  // namespace calvento
