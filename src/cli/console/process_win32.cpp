// The arguments in `argv` have gone through the system's code page, which has not every letter: the
// command line itself is asked instead.

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include "cli/console/process.h"

namespace zel {
namespace {

UINT output_page = 0;  // the console's own code page; 0 where there is no console
UINT input_page = 0;

void restoreConsole() {
  if (output_page != 0) SetConsoleOutputCP(output_page);
  if (input_page != 0) SetConsoleCP(input_page);
}

std::string toUtf8(std::wstring_view wide) {
  const int length = static_cast<int>(wide.size());
  const int size =
      WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), length, bytes.data(), size, nullptr, nullptr);
  return bytes;
}

}  // namespace

std::vector<std::string> processArguments(int /*argc*/, char** /*argv*/) {
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  for (int i = 1; wide != nullptr && i < count; ++i) arguments.push_back(toUtf8(wide[i]));
  LocalFree(wide);
  return arguments;
}

void useByteStreams() {
  std::ios::sync_with_stdio(false);
  for (std::FILE* const stream : {stdin, stdout, stderr}) _setmode(_fileno(stream), _O_BINARY);
  output_page = GetConsoleOutputCP();
  input_page = GetConsoleCP();
  std::atexit(restoreConsole);
  SetConsoleOutputCP(CP_UTF8);
  SetConsoleCP(CP_UTF8);
}

}  // namespace zel
