#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "plataforma/color.h"
#include "plataforma/propiedad.h"

namespace calvento {

class Ventana;

using Evento = std::function<void()>;
inline void disparar(const Evento& evento) {
  if (evento) evento();
}

/// What all controls of a window have in common. A control knows no window system: whoever shows it sets alCambiar
/// and is told of every change; what the user does arrives as the events of the concrete control.
class Control : public Notificable {
 public:
  Control(Ventana& ventana, std::string_view nombre);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;
  virtual ~Control() = default;

  const std::string& nombre() const { return nombre_; }
  void alCambiarPropiedad(const void* propiedad) override;

  Propiedad<bool> Visible{*this, true};
  Propiedad<bool> Enabled{*this, true};
  /// As long as they are these two, the desktop's own colours stand.
  Propiedad<Color> BackColor{*this, color::ventana};
  Propiedad<Color> ForeColor{*this, color::textoBoton};
  /// Empty: the tooltip of the window's design stands.
  Propiedad<std::string> ToolTipText{*this, {}};

  Evento GotFocus;
  Evento MouseMove;

  /// Set by the one that shows the control; called after any property has changed.
  Evento alCambiar;

 protected:
  virtual void trasCambiar(const void* /*propiedad*/) {}

 private:
  std::string nombre_;
};

/// What the widget of a control of class C holds instead of a reference, since it may outlive the window it shows.
template <class C>
class Vinculable {
 public:
  /// Empty as soon as the control is gone.
  std::weak_ptr<C> vinculo() { return std::shared_ptr<C>(vida_, static_cast<C*>(this)); }

 private:
  std::shared_ptr<Vinculable> vida_{this, [](Vinculable*) {}};
};

/// Which numbers have a sense in a field.
enum class Dominio { todos, noNegativos, positivos };

class TextBox;

/// What a value is, for whom the window's design alone does not tell it: screen readers, notes, checks. Texts live as
/// long as the program.
struct Magnitud {
  std::string_view nombre;  ///< in the user's words, with the group that it stands in
  std::string_view unidad;  ///< empty: none
  Dominio dominio = Dominio::todos;
  /// A neighbour that must be more than 0 where this one is 0: a canal without a bottom width needs a side slope.
  const TextBox* sinCeroCon = nullptr;
  bool loLeeElCalculo = true;  ///< false: read by what follows the calculation only
};

/// A label whose caption the program changes. (Fixed captions live in the window's design only.)
class Label : public Control {
 public:
  Label(Ventana& v, std::string_view nombre, std::string inicial = {}, Magnitud m = {})
      : Control(v, nombre), Caption(*this, std::move(inicial)), magnitud(m) {}
  Propiedad<std::string> Caption;
  Magnitud magnitud;
};

/// A field. Assigning Text raises Change, as typing does.
class TextBox : public Control {
 public:
  TextBox(Ventana& v, std::string_view nombre, std::string inicial = {}, Magnitud m = {})
      : Control(v, nombre), Text(*this, std::move(inicial)), magnitud(m) {}
  Propiedad<std::string> Text;
  Magnitud magnitud;
  Evento Change;
  Evento KeyReturn;
  /// A number field turns a typed or pasted decimal comma into a point.
  bool numerico = true;
  int SelStart = 0;
  int SelLength = 0;
  /// Selects the whole text; every field does so when it gets the focus.
  void seleccionarTodo();
  /// Replaces the text as typing or pasting does.
  void escribir(const std::string& texto);

  /// "Se lee 1.25" where a number field's text is more than the number that Val reads from it; empty where it is that
  /// number, and for an empty field.
  std::string lectura() const;
  /// What keeps the text from being a value that the field is for: nothing typed, a number outside its domain or too
  /// large for the record. Empty: nothing.
  std::string falta() const;
  /// What a calculation that failed has found wrong with the field, until its text changes.
  Propiedad<std::string> Senal{*this, {}};
  /// All that is to be told of the text, `lectura` and `Senal`; a field with any of it is shown marked.
  std::string reparo() const;

 protected:
  void trasCambiar(const void* propiedad) override;
};

class CommandButton : public Control {
 public:
  CommandButton(Ventana& v, std::string_view nombre, std::string inicial = {})
      : Control(v, nombre), Caption(*this, std::move(inicial)) {}
  /// Empty: the caption of the window's design stands.
  Propiedad<std::string> Caption;
  Evento Click;
};

/// One of the options of a group; switching one on switches its neighbours of the same group off.
class OptionButton : public Control {
 public:
  OptionButton(Ventana& v, std::string_view nombre, int grupo, bool inicial)
      : Control(v, nombre), Value(*this, inicial), grupo_(grupo), ventana_(v) {}
  Propiedad<bool> Value;
  /// Raised when the option is switched on, by the user or by the program.
  Evento Click;
  int grupo() const { return grupo_; }

 protected:
  void trasCambiar(const void* propiedad) override;

 private:
  int grupo_;
  Ventana& ventana_;
};

class CheckBox : public Control {
 public:
  CheckBox(Ventana& v, std::string_view nombre, bool inicial = false) : Control(v, nombre), Value(*this, inicial) {}
  Propiedad<bool> Value;
  Evento Click;
};

/// A list of texts of which one is chosen.
class ComboBox : public Control {
 public:
  ComboBox(Ventana& v, std::string_view nombre, std::vector<std::string> lista = {}, int indice = -1)
      : Control(v, nombre), List(*this, std::move(lista)), ListIndex(*this, indice) {}
  Propiedad<std::vector<std::string>> List;
  Propiedad<int> ListIndex;
  /// Raised when another entry is chosen, by the user or by the program.
  Evento Click;
  /// The chosen entry's text, empty where none is chosen.
  std::string Text() const;

 protected:
  void trasCambiar(const void* propiedad) override;
};

/// A group of controls that is shown or hidden as one.
class Frame : public Control {
 public:
  using Control::Control;
};

/// A drawing decoration (line, shape, sketch layer) that the program shows and hides.
class Adorno : public Control {
 public:
  using Control::Control;
};

/// A menu entry.
class Menu : public Control {
 public:
  using Control::Control;
  Propiedad<bool> Checked{*this, false};
  /// An entry with a check mark, which its click sets or clears.
  bool conMarca = false;
  Evento Click;
};

/// A bar of buttons, each with a key.
class Toolbar : public Control {
 public:
  Toolbar(Ventana& v, std::string_view nombre, std::vector<std::string> claves)
      : Control(v, nombre), claves_(std::move(claves)) {}
  const std::vector<std::string>& claves() const { return claves_; }
  std::function<void(const std::string& clave)> ButtonClick;

 private:
  std::vector<std::string> claves_;
};

/// A status bar of one panel, behind it a note that the hints in the panel do not wipe out, and at its right a panel
/// that can be clicked.
class StatusBar : public Control {
 public:
  using Control::Control;
  Propiedad<std::string> Panel1{*this, {}};
  Propiedad<std::string> Nota{*this, {}};
  Propiedad<std::string> Panel2{*this, {}};  ///< hidden while it is empty
  Propiedad<bool> Alarma{*this, false};      ///< the second panel tells of something bad
  Evento Panel2Click;
};

/// Two arrows that step a whole number.
class UpDown : public Control {
 public:
  UpDown(Ventana& v, std::string_view nombre, int minimo, int maximo, int inicial)
      : Control(v, nombre), Value(*this, inicial), minimo_(minimo), maximo_(maximo) {}
  Propiedad<int> Value;
  Evento UpClick;
  Evento DownClick;
  /// What a press of an arrow does: steps Value within its limits and raises the event.
  void subir();
  void bajar();

 private:
  int minimo_;
  int maximo_;
};

/// A bar that shows how far a long work has come.
class ProgressBar : public Control {
 public:
  using Control::Control;
  Propiedad<int> Min{*this, 0};
  Propiedad<int> Max{*this, 100};
  Propiedad<double> Value{*this, 0.0};
};

}  // namespace calvento
