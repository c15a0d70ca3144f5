#pragma once

#include "platform/Export.h"

class CFormulaParser;

/// One level of precedence of the formula language: base of the grammar's classes.
///
/// A parser holds a list of operations, loosest binding first. Each operation evaluates the parser's text at a
/// position and hands on to the entry behind it where the text is not its business. Operations carry no data, so
/// one object of each class serves all parsers; parsers refer to it and never free it. Nobody deletes an operation
/// through a pointer to this class: the table of virtual operations holds no destructor.
/// A failure is a key thrown through CKXExceptionHandler; CFormulaParser::WerteAus catches it.
class ZEB_EXPORT Operation {
 public:
  Operation() = default;
  Operation(const Operation& other) = default;
  Operation& operator=(const Operation& other) = default;

  /// The value of the entry behind this one. No entry: "InternalParserError".
  virtual double EvalNextOperation(int& pos, CFormulaParser* parser);
  /// Evaluates the text from `pos` (in characters) and moves `pos` behind what was read. `pos` is the parser's own
  /// position in every run that WerteAus starts.
  virtual double Eval(int& pos, CFormulaParser* parser) = 0;

 protected:
  /// How many characters at `pos` belong to this level; 0 for none. Does not move `pos`.
  virtual int FindOperation(int& pos, CFormulaParser* parser) = 0;

  /// The first entry of the parser's list, null if the list is empty.
  Operation* GetFirstOperation(CFormulaParser* parser);
  /// The entry behind this one in the parser's list, null if this is the last or absent.
  Operation* GetNextOperation(CFormulaParser* parser);
};
