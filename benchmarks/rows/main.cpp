// bench_rows ROW...: measures these rows of the table that benchmarks/report.py makes.
#include <QApplication>
#include <array>
#include <cstdio>
#include <exception>
#include <optional>
#include <string_view>

#include "benchmarks/rows/rows.h"

namespace {

struct Row {
  std::string_view name;
  void (*procedure)();
  bool is_drawn = false;  // by the toolkit
};

constexpr std::array<Row, 11> kRows = {{
    {"sweep", zel::bench::sweepRow},
    {"sweep-on-all", zel::bench::sweepOnAllRow},
    {"single", zel::bench::singleRow},
    {"reference", zel::bench::referenceRow},
    {"single-reference", zel::bench::singleReferenceRow},
    {"functions", zel::bench::functionsRow},
    {"function-sweeps", zel::bench::functionSweepsRow},
    {"painting", zel::bench::paintingRow, true},
    {"redraw", zel::bench::redrawRow, true},
    {"family", zel::bench::familyRow, true},
    {"open", zel::bench::openRow},
}};

/// The toolkit is started where it is needed only: it leaves vector registers in a state in which
/// scalar functions of several instruction sets take ten times as long.
bool measure(std::string_view name, std::optional<QApplication>& application, int& argc,
             char** argv) {
  for (const Row& row : kRows) {
    if (row.name != name) continue;
    if (row.is_drawn && !application) application.emplace(argc, argv);
    row.procedure();
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
  std::optional<QApplication> application;
  try {
    for (int i = 1; i < argc; ++i) {
      if (measure(argv[i], application, argc, argv)) continue;
      std::fprintf(stderr, "bench_rows: no row %s\n", argv[i]);
      return 2;
    }
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "bench_rows: %s\n", failure.what());
    return 1;
  }
  return 0;
}
