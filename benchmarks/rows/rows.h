#pragma once

#include <optional>
#include <string_view>

/// The rows that are measured within one process. Each prints what it has measured, and throws a
/// std::runtime_error where there is nothing to measure.
namespace zel::bench {

void sweepRow();
/// With all the threads that muParser takes.
void sweepOnAllRow();
void singleRow();
void referenceRow();
void singleReferenceRow();
void functionsRow();
void functionSweepsRow();
void paintingRow();
void redrawRow();
void familyRow();
void openRow();

/// One line: row, what exactly, seconds, and the seconds beside it where there are some, with tabs
/// between them.
void print(std::string_view row, std::string_view what, double seconds,
           std::optional<double> beside = std::nullopt);

}  // namespace zel::bench
