#include "cli/console/input_output.h"

#include <array>
#include <fstream>
#include <istream>
#include <ostream>
#include <system_error>

#include <CLI/CLI.hpp>

#include "cli/console/interrupt.h"
#include "files/absolute_path.h"
#include "files/whole_file.h"

namespace zel {
namespace {

/// Whether something is at the path that no other file may replace.
bool isDeviceOrPipe(const std::string& path) {
  std::error_code ignored;
  const auto status = std::filesystem::status(pathOf(path), ignored);
  return std::filesystem::is_fifo(status) || std::filesystem::is_character_file(status) ||
         std::filesystem::is_block_file(status);
}

bool writeInPlace(const std::string& path, std::string_view bytes) {
  std::ofstream stream(pathOf(path), std::ios::binary);
  stream << bytes;
  stream.close();
  return stream.good();
}

}  // namespace

bool isStandardStream(std::string_view path) { return path == "-"; }

std::optional<std::string> readStandardInput(const Console& console) {
  std::string bytes;
  std::array<char, std::size_t{1} << 16> block{};
  do {
    console.in.read(block.data(), block.size());
    bytes.append(block.data(), static_cast<std::size_t>(console.in.gcount()));
    if (bytes.size() > kMaxWholeFile) return std::nullopt;
  } while (console.in);
  if (console.in.bad()) return std::nullopt;
  return bytes;
}

void keepInputFree(std::string_view name, std::string_view document) {
  if (isStandardStream(document))
    throw CLI::ValidationError(std::string(name), "standard input is read for something else");
}

bool writeOutput(const std::string& path, std::string_view bytes, const Console& console) {
  if (isStandardStream(path)) {
    console.out << bytes;
    return true;  // whether it can be written is seen when the command is done
  }
  if (isDeviceOrPipe(path)) return writeInPlace(path, bytes);
  const DeferInterrupt whole;
  return writeWholeFile(path, bytes).written;
}

}  // namespace zel
