#pragma once

#include <QValidator>

namespace calvento {

/// Turns the decimal comma of a number field into a point while the user types or pastes, before the field tells of the
/// change. It rejects nothing. Texts that the program writes pass as they are: see Pausa.
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
};

}  // namespace calvento
