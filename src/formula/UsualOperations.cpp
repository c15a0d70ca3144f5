#include "formula/UsualOperations.h"

#include "formula/BiOperation.h"
#include "formula/FunktionOperation.h"
#include "formula/PrefixOperations.h"
#include "formula/StringOperations.h"
#include "formula/VariableOperation.h"
#include "formula/ZahlOperation.h"

namespace zeb {

UsualOperations::UsualOperations()
    : common{GetVergleichOperation(), GetUndOderOperation(),       GetPlusMinusOperation(),
             GetNotOperation(),       GetNegVorzeichenOperation(), GetMalDurchOperation(),
             GetPotenzOperation(),    GetKlammerOperation(),       GetZahlOperation()},
      stringFunction(GetStringFunktionOperation()),
      function(GetFunktionOperation()),
      variable(GetVariableOperation()),
      stringConstant(GetConstStringOperation()) {
  for (Operation* const operation : common) plain.Append(operation);
  plain.Append(function);
}

const UsualOperations& GetUsualOperations() {
  static const UsualOperations operations;
  return operations;
}

}  // namespace zeb
