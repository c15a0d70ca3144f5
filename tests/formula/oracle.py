#!/usr/bin/env python3
"""A second evaluator of the formula language, plain and slow, and a comparison of it with the library.

It shares nothing with the library but the rules of the language: it recurses over the levels of precedence, keeps the
text and one position, and computes with Python's floats, which are the same IEEE doubles.

Usage: oracle.py PROGRAM [COUNT [SEED]]   compares COUNT made-up formulas with what PROGRAM (formula_driver) says
       oracle.py FORMULA                  prints one formula's outcome, computed and checked
"""

import math
import os
import random
import struct
import subprocess
import sys

ASCII_LETTERS = set("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ")
DIGITS = set("0123456789")
BLANKS = set(" \t\n\v\f\r")
INF = math.inf

VARIABLES = {"a": 2.0, "b": 3.0, "c": 0.0, "d": -1.5, "x1": 1.0 / 3.0, "#q": 1e20, "_u": 12345.678, "Preis": 19.99,
             "Menge": 7.0}


class FormulaError(Exception):
    pass


# ---- Arithmetic -----------------------------------------------------------------------------------------------------

def power(base, exponent):
    """The C library's pow."""
    try:
        return math.pow(base, exponent)
    except OverflowError:
        odd = exponent == math.floor(exponent) and math.fmod(exponent, 2.0) != 0.0
        return -INF if base < 0 and odd else INF
    except ValueError:
        return INF if base == 0.0 else math.nan


def guarded(function, x, overflow):
    try:
        return function(x)
    except OverflowError:
        return overflow
    except ValueError:
        return math.nan


def divide(a, b):
    """IEEE division."""
    if b != 0.0:
        return a / b
    if a == 0.0 or math.isnan(a):
        return math.nan
    return math.copysign(INF, a) * math.copysign(1.0, b)


def floor(x):
    return x if math.isinf(x) or math.isnan(x) or x == 0.0 else math.copysign(float(math.floor(x)), x) if abs(x) < 1 and x > 0 else float(math.floor(x))


def ceil(x):
    if math.isinf(x) or math.isnan(x) or x == 0.0:
        return x
    result = float(math.ceil(x))
    return -0.0 if result == 0.0 and x < 0 else result


def round_positive(value, digits, mode, decimal_places):
    if math.isinf(value):
        return value
    if decimal_places:
        scale = power(10.0, float(digits))
    else:
        scale = power(10.0, float(digits - int(math.ceil(math.log10(value)))))
    if value > divide(1e16, scale):
        return value
    lower = divide(floor(value * scale), scale)
    if lower > value:
        lower -= value * 1e-15
    upper = divide(ceil(value * scale), scale)
    if value > upper:
        upper += value * 1e-15
    if value > lower - value * 1e-14 and lower + value * 1e-14 > value:
        return value
    if mode == 1:
        return lower if (upper - value - 1e-14 * value) > (value - lower) else upper
    return {0: upper, 2: lower}.get(mode, 0.0)


def runde(value, digits, mode=1, decimal_places=True):
    if math.isnan(value) or value == 0.0:
        return 0.0
    if value < 0.0:
        return -round_positive(-value, digits, {0: 2, 1: 1, 2: 0}[mode], decimal_places)
    return round_positive(value, digits, mode, decimal_places)


def round14(value):
    return runde(value, 14)


def to_32_bits(value):
    if math.isnan(value) or math.isinf(value):
        return -2147483648.0
    whole = math.trunc(value)
    return float(whole) if -2147483648 <= whole <= 2147483647 else -2147483648.0


def truth(condition):
    return 1.0 if condition else 0.0


# ---- The parser -----------------------------------------------------------------------------------------------------

ONE_ARGUMENT = {"floor", "sinh", "cosh", "tanh", "arcsin", "arccos", "arctan", "arccot", "ceil", "sqrt", "sin", "cos",
                "tan", "cot", "log", "exp", "abs", "round", "sqr", "ln", "eex", "rad", "deg", "trunc"}
TWO_ARGUMENTS = {"roundk", "arctan2"}
MANY_ARGUMENTS = {"min", "max"}
CONDITIONS = {"wenn", "if"}


class Evaluator:
    def __init__(self, text, variables=None, computing=True):
        self.text = text
        self.pos = 0
        self.computing = computing
        self.variables = variables
        self.pi = 2.0 * math.asin(1.0)
        self.w = self.pi / 200
        self.depth = 0

    def run(self):
        """(value, None, 0) or (None, key, position)."""
        try:
            if not self.text:
                return 0.0, None, 0
            value = self.comparison()
            if self.pos < len(self.text):
                raise FormulaError("ArithmeticOperatorExpected")
            return value, None, 0
        except FormulaError as error:
            return None, str(error), self.pos

    def char(self, offset=0):
        index = self.pos + offset
        return self.text[index] if index < len(self.text) else ""

    def eat_white(self):
        brace = quote = False
        while self.pos < len(self.text):
            c = self.text[self.pos]
            if c == "'":
                if not brace:
                    quote = not quote
            elif c == "{":
                if brace:
                    raise FormulaError("NestedComment")
                if not quote:
                    brace = True
            elif c == "}":
                if brace:
                    brace = False
                elif not quote:
                    raise FormulaError("CommentBeginMissing")
            elif not brace and not quote and c not in BLANKS:
                return
            self.pos += 1
        if brace:
            raise FormulaError("CommentEndMissing")
        if quote:
            raise FormulaError("CommentEndMissing2")

    def enter(self):
        """One level of brackets or calls more, at its opening bracket."""
        if self.depth >= 200:
            raise FormulaError("InternalParserError")
        self.depth += 1
        self.pos += 1

    def binary(self, operand, find, calculate):
        self.eat_white()
        left = operand()
        self.eat_white()
        while self.pos < len(self.text):
            n = find()
            if n == 0:
                break
            op = self.text[self.pos:self.pos + n]
            self.pos += n
            self.eat_white()
            right = operand()
            self.eat_white()
            left = calculate(op, left, right)
        return left

    # -- comparison
    def comparison(self):
        return self.binary(self.logic, self.find_comparison, self.compare)

    def find_comparison(self):
        pair = self.char() + self.char(1)
        if self.char() and self.char() in "<>":
            return 2 if pair in ("<=", ">=", "<>") else 1
        return 2 if pair == "==" else 0

    def compare(self, op, a, b):
        d = round14(runde(a, 14, 1, False) - runde(b, 14, 1, False))
        return truth({"<": 0 > d, "<=": 0 >= d, ">": d > 0, ">=": d >= 0, "==": d == 0, "<>": d != 0}[op])

    # -- logic
    def logic(self):
        return self.binary(self.sum, lambda: 2 if self.char() + self.char(1) in ("&&", "||") else 0,
                           lambda op, a, b: truth(a != 0 or b != 0) if op == "||" else truth(a != 0 and b != 0))

    # -- sums
    def sum(self):
        return self.binary(self.negation, lambda: 1 if self.char() in ("+", "-") else 0, self.add)

    def add(self, op, a, b):
        result = a + b if op == "+" else a - b
        return round14(result) if self.computing else result

    # -- prefixes
    def negation(self):
        self.eat_white()
        if self.char() == "!" and self.pos + 1 < len(self.text):
            self.pos += 1
            return truth(self.sign() == 0.0)
        return self.sign()

    def sign(self):
        self.eat_white()
        if self.char() == "-" and self.sign_may_stand():
            self.pos += 1
            return -self.product()
        return self.product()

    def sign_may_stand(self):
        before = self.pos - 1
        while before >= 0 and self.text[before] in BLANKS:
            before -= 1
        return before < 0 or self.text[before] in "(;=!><}'"

    # -- products
    def product(self):
        return self.binary(self.power, self.find_product, self.multiply)

    def find_product(self):
        if self.char() in ("*", "/", ":"):
            return 1
        return 3 if self.text[self.pos:self.pos + 3].lower() in ("mod", "div") else 0

    def multiply(self, op, a, b):
        if not self.computing:
            return 0.0
        op = op.lower()
        if op == "*":
            return round14(a * b)
        if b == 0.0:
            raise FormulaError("ZeroDividedByZero" if op in "/:" and a == 0.0 else "DivisionByZero")
        if op == "mod":
            return round14(math.nan if math.isinf(a) or math.isnan(a) or math.isnan(b) else math.fmod(a, b))
        quotient = divide(a, b)
        return round14(to_32_bits(quotient) if op == "div" else quotient)

    # -- powers
    def power(self):
        return self.binary(self.bracket, self.find_power, self.raise_to)

    def find_power(self):
        if self.char() in ("^", "~"):
            return 1
        return 2 if self.char() + self.char(1) in ("//", "**") else 0

    def raise_to(self, op, a, b):
        if not self.computing:
            return 0.0
        if op in ("^", "**"):
            if a == 0.0 and b < 0:
                raise FormulaError("NullPowerNegative")
            if a < 0 and ceil(b) != b:
                raise FormulaError("NegativePowerFraction")
            return round14(power(a, b))
        if a == 0.0:
            raise FormulaError("ZeroRoot")
        if b < 0:
            raise FormulaError("NegativeRoot")
        if a < 0 and b == 0.0:
            raise FormulaError("NegativeRootNull")
        if a == 2.0:
            return round14(math.sqrt(b))
        if a == -2.0:
            return round14(divide(1.0, math.sqrt(b)))
        return round14(power(b, divide(1.0, a)))

    # -- brackets
    def bracket(self):
        self.eat_white()
        if self.char() != "(":
            return self.number()
        self.enter()
        value = self.comparison()
        if self.char() != ")":
            raise FormulaError("ClosingBracketExpected")
        self.pos += 1
        self.depth -= 1
        return value

    # -- numbers
    def digits_at(self, index):
        end = index
        while end < len(self.text) and self.text[end] in DIGITS:
            end += 1
        return self.text[index:end]

    def number(self):
        self.eat_white()
        q = self.pos + (1 if self.char() == "-" else 0)
        digits = self.digits_at(self.pos)
        mark = q + len(digits)
        n = len(digits)
        if mark < len(self.text) and self.text[mark] in ".,":
            n += 1 + len(self.digits_at(mark + 1))
        if n == 0:
            return self.function()
        value = self.literal(self.text[self.pos:self.pos + n])
        self.pos += n
        return value

    def literal(self, s):
        negative = s.startswith("-")
        s = s[1:] if negative else s
        end = 0
        while end < len(s) and s[end] in DIGITS:
            end += 1
        collected = s[:end]
        if end < len(s) and s[end] in ".,":
            collected += "."
            end += 1
            while end < len(s) and s[end] in DIGITS:
                collected += s[end]
                end += 1
        if collected in ("", "."):
            raise FormulaError("DoubleExpected")
        value = float(collected)
        value = -value if negative else value
        if math.isinf(value):
            raise FormulaError("NumberTooLong")
        return round14(value)

    # -- functions
    def function(self):
        self.eat_white()
        end = self.pos
        while end < len(self.text):
            c = self.text[end]
            if not (c in ASCII_LETTERS or c == "_" or (c in DIGITS and end > self.pos)):
                break
            end += 1
        name = self.text[self.pos:end].lower()
        if name == "pi":
            self.pos += 2
            value = self.pi if self.computing else 0.0
        elif name == "e":
            self.pos += 1
            value = math.exp(1.0) if self.computing else 0.0
        elif name in CONDITIONS:
            self.pos += len(name)
            value = self.condition()
        elif name in ONE_ARGUMENT or name in TWO_ARGUMENTS or name in MANY_ARGUMENTS:
            self.pos += len(name)
            value = self.call(name, self.arguments())
        elif self.variables is None:
            raise FormulaError("FunctionExpected")
        else:
            value = self.variable()
        return round14(value) if self.computing else value

    def open_bracket(self):
        self.eat_white()
        if self.char() != "(":
            raise FormulaError("OpeningBracketExpected")
        self.enter()
        self.eat_white()

    def arguments(self):
        self.open_bracket()
        values = [self.comparison()]
        while self.pos < len(self.text):
            self.eat_white()
            if self.char() != ";":
                break
            self.pos += 1
            values.append(self.comparison())
        self.eat_white()
        if self.char() != ")":
            raise FormulaError("ClosingBracketExpected")
        self.pos += 1
        self.depth -= 1
        return values

    def condition(self):
        self.open_bracket()
        c = self.comparison()
        parts = []
        for chosen in (c != 0, c == 0):
            self.eat_white()
            if self.char() != ";":
                break
            self.pos += 1
            saved = self.computing
            if not chosen:
                self.computing = False
            parts.append(self.comparison())
            if not chosen:
                self.computing = saved
        self.eat_white()
        if not parts or self.char() == ";":
            raise FormulaError("WrongFunctionParameterCount")
        if self.char() != ")":
            raise FormulaError("ClosingBracketExpected")
        self.pos += 1
        self.depth -= 1
        self.eat_white()
        if not self.computing:
            return 0.0
        if c != 0:
            return parts[0]
        return parts[1] if len(parts) == 2 else 0.0

    def call(self, name, values):
        wrong = (len(values) < 2 if name in MANY_ARGUMENTS else
                 len(values) != 2 if name in TWO_ARGUMENTS else len(values) != 1)
        if wrong:
            raise FormulaError("WrongFunctionParameterCount")
        x = values[0]
        y = values[1] if len(values) > 1 else 0.0
        if name == "roundk" and (ceil(y) != y or abs(y) >= 14):
            raise FormulaError("IllegalParameter")
        if name == "arctan2" and (x == 0.0 or y == 0.0):
            raise FormulaError("IllegalParameter")
        if not self.computing:
            return 0.0
        return self.compute(name, x, y, values)

    def compute(self, name, x, y, values):
        w, angle = self.w, self.w * x

        def require(condition, key="IllegalParameter"):
            if not condition:
                raise FormulaError(key)

        def trigonometric(function):
            return guarded(function, angle, math.nan)

        if name in ("arcsin", "arccos"):
            require(not (x < -1.0 or x > 1.0))
            return (math.asin(x) if name == "arcsin" else math.acos(x)) / w
        if name == "tan":
            require(round14(trigonometric(math.cos)) != 0.0)
            return trigonometric(math.tan)
        if name == "cot":
            require(round14(trigonometric(math.sin)) != 0.0)
            return divide(1.0, trigonometric(math.tan))
        if name in ("log", "ln"):
            require(x > 0)
            return math.log10(x) if name == "log" else math.log(x)
        if name == "sqrt":
            require(not x < 0, "NegativeRoot")
            return math.sqrt(x)
        if name == "roundk":
            return runde(x, int(y))
        if name == "min":
            return min(values)
        if name == "max":
            return max(values)
        return {
            "floor": lambda: floor(x),
            "ceil": lambda: ceil(x),
            "sinh": lambda: guarded(math.sinh, x, math.copysign(INF, x)),
            "cosh": lambda: guarded(math.cosh, x, INF),
            "tanh": lambda: math.tanh(x),
            "arctan": lambda: math.atan(x) / w,
            "arccot": lambda: math.atan2(1.0, x) / w,
            "sin": lambda: trigonometric(math.sin),
            "cos": lambda: trigonometric(math.cos),
            "exp": lambda: guarded(math.exp, x, INF),
            "abs": lambda: abs(x),
            "round": lambda: runde(x, 0),
            "sqr": lambda: x * x,
            "eex": lambda: power(10.0, x),
            "rad": lambda: x / 360.0 * 2.0 * self.pi,
            "deg": lambda: x / (self.pi * 2.0) * 360.0,
            "arctan2": lambda: math.atan2(x, y) / w,
            "trunc": lambda: to_32_bits(x),
        }[name]()

    # -- variables
    def variable(self):
        self.eat_white()
        end = self.pos
        while end < len(self.text):
            c = self.text[end]
            if not (c in ASCII_LETTERS or c in "#_" or (c in DIGITS and end > self.pos)):
                break
            end += 1
        if end == self.pos:
            raise FormulaError("FunctionVariableExpected")
        name = self.text[self.pos:end]
        if name not in self.variables:
            raise FormulaError("VariableNotFound")
        self.pos = end
        return self.variables[name]


# ---- Made-up formulas -----------------------------------------------------------------------------------------------

NUMBERS = ["0", "1", "2", "3", "7", "10", "0.5", "1,5", ".5", "2.", "0.1", "0,2", "0.3", "100", "200", "50", "14", "13",
           "1234.5678", "99.995", "0.00000000000001", "3000000000", "2147483648", "1e", "123456789012345678901234567890",
           "0.333333333333333333", "19.99", "1.005", "33", "0.07", "1000000000000000", "25", "12"]
OPERATORS = ["+", "-", "*", "/", ":", "^", "**", "~", "//", " mod ", " div ", "<", "<=", ">", ">=", "==", "<>", "&&",
             "||"]
BROKEN = ["(", ")", ";", "!", "-", "=", "!=", "{", "}", "'", ".", ",", "$", "&", "|", " ", "{c}", "'c'", "--", "!!", "[",
          "]", "#", "\t", "e", "pi", "sin", "wenn(", "min(", "\u00e4", "1 2"]
NAMES = ["a", "b", "c", "d", "x1", "#q", "_u", "Preis", "Menge", "unknown", "e", "pi", "PI", "E", "amod", "sinus"]


class Maker:
    def __init__(self, seed):
        self.random = random.Random(seed)

    def blank(self):
        return self.random.choice(["", "", "", "", " ", " ", "  ", "{c}", "'c'", " {a + b} "])

    def number(self):
        kind = self.random.random()
        if kind < 0.6:
            return self.random.choice(NUMBERS)
        if kind < 0.8:
            return str(self.random.randrange(1000))
        digits = self.random.randrange(1, 18)
        return "%.*f" % (digits, self.random.random() * 10 ** self.random.randrange(-3, 6))

    def operand(self, depth):
        kind = self.random.random()
        if depth <= 0 or kind < 0.42:
            return self.number()
        if kind < 0.55:
            return self.random.choice(NAMES)
        if kind < 0.72:
            return "(" + self.blank() + self.sign() + self.expression(depth - 1) + ")"
        if kind < 0.80:
            return self.random.choice(["wenn", "if", "IF"]) + self.call(depth, self.random.choice([2, 3, 3, 3, 1, 4]))
        if kind < 0.86:
            return self.random.choice(["min", "max", "roundk", "arctan2"]) + self.call(depth, self.random.choice([2, 2, 3, 1]))
        name = self.random.choice(sorted(ONE_ARGUMENT))
        return (name.upper() if self.random.random() < 0.1 else name) + self.call(depth, 1 if self.random.random() < 0.95 else 2)

    def call(self, depth, count):
        arguments = [self.sign() + self.expression(depth - 1) for _ in range(count)]
        return self.blank() + "(" + (self.blank() + ";" + self.blank()).join(arguments) + ")"

    def sign(self):
        return self.random.choice(["", "", "", "-", "!", "- "])

    def expression(self, depth):
        text = self.operand(depth)
        for _ in range(self.random.choice([0, 0, 1, 1, 1, 2, 3])):
            text += self.blank() + self.random.choice(OPERATORS) + self.blank() + self.operand(depth - 1)
        return text

    def formula(self):
        text = self.blank() + self.sign() + self.expression(self.random.choice([0, 1, 2, 2, 3])) + self.blank()
        for _ in range(self.random.choice([0, 0, 0, 1, 1, 2])):
            at = self.random.randrange(len(text) + 1)
            if self.random.random() < 0.5:
                text = text[:at] + self.random.choice(BROKEN) + text[at:]
            else:
                text = text[:at] + text[at + self.random.randrange(1, 4):]
        return text


# ---- Comparison -----------------------------------------------------------------------------------------------------

def bits(value):
    return "%016x" % struct.unpack(">Q", struct.pack(">d", value))[0]


def outcome(result):
    value, key, position = result
    return bits(value) if key is None else "%s %d" % (key, position)


def expected(kind, text):
    variables = VARIABLES if kind[0] == "v" else None
    return outcome(Evaluator(text, variables, kind[1] == "c").run())


def compare(program, count, seed):
    maker = Maker(seed)
    formulas = []
    for _ in range(count):
        text = maker.formula().replace("\n", " ")
        formulas.append((maker.random.choice("pv") + maker.random.choice("ccs"), text))
    given = "".join("%s %s\n" % formula for formula in formulas)
    names = ["%s=%s" % (name, value.hex()) for name, value in VARIABLES.items()]
    run = subprocess.run([program] + names, input=given.encode("utf-8"), stdout=subprocess.PIPE, check=True)
    actual = run.stdout.decode("ascii").splitlines()
    if len(actual) != count:
        sys.exit("oracle: %d formulas went in and %d outcomes came out" % (count, len(actual)))
    differences = good = 0
    for (kind, text), found in zip(formulas, actual):
        wanted = expected(kind, text)
        good += " " not in wanted
        if wanted != found:
            differences += 1
            if differences <= 20:
                print("%s %r: expected %s, got %s" % (kind, text, wanted, found))
    print("oracle: %d formulas, %d of them good, %d differences" % (count, good, differences))
    return differences == 0 and good > count // 5 and count - good > count // 5


def main(arguments):
    sys.setrecursionlimit(100000)
    if not arguments:
        sys.exit(__doc__)
    if not os.access(arguments[0], os.X_OK):
        for computing in (True, False):
            value, key, position = Evaluator(arguments[0], VARIABLES, computing).run()
            print("computed:" if computing else "checked: ", repr(value) if key is None else "%s @%d" % (key, position))
        return
    count = int(arguments[1]) if len(arguments) > 1 else 100000
    seed = int(arguments[2]) if len(arguments) > 2 else 1
    if not compare(arguments[0], count, seed):
        sys.exit(1)


main(sys.argv[1:])
