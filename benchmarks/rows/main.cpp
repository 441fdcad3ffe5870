// bench_rows ROW...: measures these rows of the table that benchmarks/report.py makes.
#include <QApplication>
#include <array>
#include <cstdio>
#include <exception>
#include <string_view>
#include <utility>

#include "benchmarks/rows/rows.h"

namespace {

using Row = std::pair<std::string_view, void (*)()>;

constexpr std::array<Row, 11> kRows = {{
    {"sweep", zel::bench::sweepRow},
    {"sweep-on-all", zel::bench::sweepOnAllRow},
    {"single", zel::bench::singleRow},
    {"reference", zel::bench::referenceRow},
    {"single-reference", zel::bench::singleReferenceRow},
    {"functions", zel::bench::functionsRow},
    {"function-sweeps", zel::bench::functionSweepsRow},
    {"painting", zel::bench::paintingRow},
    {"redraw", zel::bench::redrawRow},
    {"family", zel::bench::familyRow},
    {"open", zel::bench::openRow},
}};

bool measure(std::string_view name) {
  for (const auto& [row, procedure] : kRows) {
    if (row != name) continue;
    procedure();
    return true;
  }
  return false;
}

}  // namespace

void zel::bench::print(std::string_view row, std::string_view what, double seconds,
                       std::optional<double> beside) {
  std::printf("%.*s\t%.*s\t%.9g", static_cast<int>(row.size()), row.data(),
              static_cast<int>(what.size()), what.data(), seconds);
  if (beside) std::printf("\t%.9g", *beside);
  std::printf("\n");
}

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  try {
    for (int i = 1; i < argc; ++i) {
      if (measure(argv[i])) continue;
      std::fprintf(stderr, "bench_rows: no row %s\n", argv[i]);
      return 2;
    }
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "bench_rows: %s\n", failure.what());
    return 1;
  }
  return 0;
}
