#pragma once

#include <iosfwd>
#include <memory>
#include <optional>
#include <span>

#include "cli/console/console.h"

namespace zel {

/// Writes the rows of a table one by one and keeps none.
class TableRows {
 public:
  virtual ~TableRows() = default;

  /// A value of x or t, and those of the graph there: nothing where it is undefined.
  virtual void write(double value, std::span<const std::optional<double>> results) = 0;
  /// After the last row.
  virtual void end() {}
};

/// A line a row, number texts between ";"; an undefined value is empty.
std::unique_ptr<TableRows> makeTextRows(const Console& console);

/// A JSON array with an object a row, each on a line of its own: {"x":0,"y":1}, or of a curve
/// {"t":0,"x":1,"y":null}. A number reads back to the same double; an undefined value is null.
std::unique_ptr<TableRows> makeJsonRows(std::ostream& out, bool is_curve);

}  // namespace zel
