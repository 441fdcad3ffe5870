#include "engine/model.h"

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace zel::test {
namespace {

struct Error {
  std::string message;
};
struct Fault {};

constexpr double kE = 2.71828182845905;
constexpr double kPi = 3.14159265358979;
constexpr std::size_t kLongest = 16384;

const char* const kFunctions[] = {"lngamma", "gamma", "abs",   "sig",  "ln",  "log",
                                  "exp",     "raiz2", "raiz3", "inv",  "sen", "cos",
                                  "tan",     "atn",   "sin",   "sqrt", "sgn", "trpl"};

double checked(double value) {
  if (!std::isfinite(value)) throw Fault();
  return value;
}

std::string textOf(double value) {
  char text[40];
  std::snprintf(text, sizeof text, "%.15g", value == 0 ? 0.0 : value);
  return text;
}

std::string withPoint(std::string text) {
  std::replace(text.begin(), text.end(), ',', '.');
  return text;
}

bool isNumber(const std::string& text) {
  if (text.empty() || text.find_first_not_of("0123456789.,eE+-") != std::string::npos) return false;
  const std::string pointed = withPoint(text);
  char* end = nullptr;
  std::strtod(pointed.c_str(), &end);
  return *end == '\0';
}

double read(const std::string& text) {
  return text.empty() ? 0 : checked(std::strtod(withPoint(text).c_str(), nullptr));
}

int wholeNumber(double value) {
  const double rounded = std::nearbyint(value);
  if (rounded < INT_MIN || rounded > INT_MAX) throw Fault();
  return static_cast<int>(rounded);
}

double lnGamma(double v) {
  try {
    const double c[] = {76.1800917294715,  -86.5053203294168,   24.0140982408309,
                        -1.23173957245015, 0.00120865097386618, -5.395239384953E-06};
    double tmp = v + 5.5;
    tmp = checked(tmp - (v + 0.5) * checked(std::log(tmp)));
    double ser = 1.00000000019001;
    double y = v;
    for (const double each : c) ser = checked(ser + each / (y = y + 1));
    return checked(std::log(checked(2.506628274631 * ser / v)) - tmp);
  } catch (Fault) {
    throw Error{"La función LnGamma no existe para el valor solicitado."};
  }
}

[[noreturn]] void failIn(const char* function, const char* detail) {
  throw Error{std::string("Error en Función '") + function + "'\r\nDetalle: " + detail};
}

double prefixFunction(int code, double v) {
  if (code < 0 || code > 17) throw Error{"Error de sintaxis."};
  if ((code == 4 || code == 5) && v <= 0)
    failIn(kFunctions[code], "El logaritmando debe ser numérico y mayor que cero.");
  if ((code == 7 || code == 8 || code == 15 || code == 17) && v < 0)
    failIn(kFunctions[code], "El valor debe ser numérico y mayor o igual que cero.");
  switch (code) {
    case 0: return lnGamma(v);
    case 1: return std::pow(kE, lnGamma(v));
    case 2: return std::fabs(v);
    case 3:
    case 16: return v > 0 ? 1 : v < 0 ? -1 : 0;
    case 4: return std::log(v);
    case 5: return std::log10(v);
    case 6: return std::exp(v);
    case 7:
    case 15: return std::sqrt(v);
    case 8:
    case 17: return std::pow(v, 1.0 / 3);
    case 9: return 1 / v;
    case 10:
    case 14: return std::sin(checked(v * kPi) / 180);
    case 11: return std::cos(checked(v * kPi) / 180);
    case 12: return std::tan(checked(v * kPi) / 180);
    default: return std::atan(checked(v * kPi) / 180);
  }
}

double factorial(double v) {
  if (v < 0) failIn("!", "El valor debe ser numérico y positivo.");
  if (v > 170) failIn("!", "El resultado es demasiado grande.");
  if (v != std::nearbyint(v)) return std::pow(kE, lnGamma(v + 1));
  double product = 1;
  for (double factor = v; factor >= 1; --factor) product *= factor;
  return product;
}

double apply(double left, double right, char op) {
  if ((op == '/' || op == '\\') && right == 0)
    throw Error{std::string("Error: Operador ") + op +
                ": El denominador debe ser distinto de cero."};
  switch (op) {
    case '+': return left + right;
    case '-': return left - right;
    case '*': return left * right;
    case '/': return left / right;
    case '^': return std::pow(left, right);
    case '@': return prefixFunction(wholeNumber(left), right);
    case '#': return right == 0 ? factorial(left) : throw Error{"Error de sintaxis."};
    default: break;
  }
  const long long dividend = wholeNumber(left);
  const long long divisor = wholeNumber(right);
  if (divisor == 0 || dividend / divisor > INT_MAX) throw Fault();
  return static_cast<double>(dividend / divisor);
}

const Error kNoFunction = {"Error: No se entiende el elemento: \r\nFunción ingresada por usuario"};

std::string stripped(std::string text) {
  while (text.size() >= 2 && text.front() == '(' && text.back() == ')') {
    const std::string inner = text.substr(1, text.size() - 2);
    long open = 0;
    for (std::size_t i = 0; i < inner.size(); ++i) {
      if (inner[i] == '(') ++open;
      if (inner[i] == ')' && (--open < 0 || (i > 0 && inner[i - 1] == '('))) break;
    }
    if (open != 0) break;
    text = inner;
  }
  return text;
}

void replaceEach(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
    text.replace(at, from.size(), to);
    if (text.size() > 100 * kLongest) throw Fault();
  }
  if (text.size() > kLongest) throw Fault();
}

}  // namespace

void Model::setT(double value) { t_ = textOf(value); }
void Model::setP(double value) { p_ = textOf(value); }

std::string Model::evaluate(double x, const std::string& code) {
  try {
    x_ = textOf(checked(x));
    if (cached_code_.empty() || cached_code_ != code) {
      cached_code_.clear();
      position_ = 1;
    }
    if (code != expanded_code_) {
      expanded_code_ = code;
      outgrown_ = true;
      expanded_ = expand(code);
      outgrown_ = false;
    }
    if (outgrown_) throw Fault();
    const std::string text = reduce(expanded_);
    cached_code_ = code;
    position_ = 1;
    char value[40];
    std::snprintf(value, sizeof value, "= %.17g", read(text) + 0.0);
    return value;
  } catch (Fault) {
    return "! Valores demasiado grandes para operar.";
  } catch (const Error& error) {
    cached_code_.clear();
    position_ = 1;
    return "! " + error.message;
  }
}

std::string Model::expand(const std::string& code) const {
  if (code.size() > kLongest) throw Fault();
  std::string text = code;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const std::size_t call = text.find(std::string(1, letter) + "(");
    if (call == std::string::npos) continue;
    int open = 0;
    std::size_t end = call + 1;
    do {
      open += text[end] == '(' ? 1 : text[end] == ')' ? -1 : 0;
      ++end;
    } while (open > 0 && end < text.size());
    if (open > 0) continue;
    const std::string argument = text.substr(call + 1, end - call - 1);
    std::string body = graphs[static_cast<std::size_t>(letter - 'a')];
    replaceEach(body, "x", argument);
    replaceEach(text, letter + argument, body);
  }
  return text;
}

std::string Model::reduce(std::string text) {
  if (isNumber(text)) return text;
  if (text.size() >= 2 && text.front() == '(' && text.back() == ')') text = strip(text);
  if (text == "x") return x_;
  if (text == "t") return t_;
  if (text == "p") return p_;
  if (text == "e") return "2,71828182845905";
  const Operands operands = split(text);
  if (!operands.left.empty() && !operands.right.empty()) {
    const std::string left = reduce(operands.left);
    const std::string right = reduce(operands.right);
    const double first = read(left);
    const double second = read(right);
    if (operands.op.size() != 1 || !std::strchr("+-\\/*@^#", operands.op[0])) throw kNoFunction;
    return textOf(checked(apply(first, second, operands.op[0])));
  }
  if (!isNumber(text)) throw kNoFunction;
  return text;
}

std::string Model::strip(const std::string& text) {
  if (position_ > 120) return stripped(text);
  if (cached_code_.empty()) slots_[position_] = stripped(text);
  return slots_[position_++];
}

Model::Operands Model::split(const std::string& text) {
  const bool fits = position_ <= 118;
  if (fits && !cached_code_.empty()) {
    position_ += 3;
    return {slots_[position_ - 3], slots_[position_ - 2], slots_[position_ - 1]};
  }
  const std::string operators = "+-\\/*@^#";
  std::size_t best = operators.size();
  std::size_t place = text.size();
  int depth = 0;
  for (std::size_t i = text.size(); i-- > 0;) {
    if (text[i] == '(') ++depth;
    if (text[i] == ')') --depth;
    if (depth == 0 && operators.find(text[i]) < best) best = operators.find(text[place = i]);
  }
  Operands found;
  if (place < text.size())
    found = {stripped(text.substr(0, place)), stripped(text.substr(place + 1)),
             text.substr(place, 1)};
  if (best < 2 && found.left.empty() && !found.right.empty()) found.left = "0";
  if (fits) {
    slots_[position_++] = found.left;
    slots_[position_++] = found.right;
    slots_[position_++] = found.op;
  }
  if (found.op.empty()) throw Error{"No se encuentra el operador."};
  if (found.left.empty() || found.right.empty())
    throw Error{"Error: No se entiende el elemento: '" + text + "'"};
  return found;
}

}  // namespace zel::test
