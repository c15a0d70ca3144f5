#pragma once

#include "formula/OperationList.h"

#include <array>

namespace zeb {

/// The operations of the usual lists, gathered once.
struct UsualOperations {
  UsualOperations();

  /// In front of the functions: all operators, brackets and numbers.
  std::array<Operation*, 9> common;
  Operation* stringFunction;
  Operation* function;
  Operation* variable;
  Operation* stringConstant;
  /// The list of the plain language.
  OperationList plain;
};

const UsualOperations& GetUsualOperations();

}  // namespace zeb
