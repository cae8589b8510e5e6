#pragma once

#include <QValidator>

namespace calvento {

/// Turns the decimal comma of a number field into a point while the user types or pastes, before the field tells of the
/// change. It rejects nothing. Texts that the program writes pass as they are: see Pausa. A comma that has become a
/// point is remembered, so that "1,250.50" gives 1250.50 by the keyboard as it does from the clipboard: the second sign
/// tells that the first one parts thousands.
class NumeroTecleado : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& texto, int& cursor) const override;

  /// While it lives the field takes texts as they are.
  class Pausa {
   public:
    explicit Pausa(NumeroTecleado* v) : validador_(v) {
      if (validador_ != nullptr) ++validador_->pausas_;
    }
    ~Pausa() {
      if (validador_ != nullptr) --validador_->pausas_;
    }
    Pausa(const Pausa&) = delete;
    Pausa& operator=(const Pausa&) = delete;

   private:
    NumeroTecleado* validador_;
  };

 private:
  int pausas_ = 0;
  mutable QString mostrado_;  ///< the field's text after the last change of the user's
  mutable QString tecleado_;  ///< the same with the commas that stood in the place of points
};

}  // namespace calvento
