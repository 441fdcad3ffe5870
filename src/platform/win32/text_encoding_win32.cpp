#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "platform/win32/text_encoding.h"

namespace zel {
namespace {

std::string toBytes(std::wstring_view wide, UINT code_page) {
  const int length = static_cast<int>(wide.size());
  const int size =
      WideCharToMultiByte(code_page, 0, wide.data(), length, nullptr, 0, nullptr, nullptr);
  if (size <= 0) return {};
  std::string bytes(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(code_page, 0, wide.data(), length, bytes.data(), size, nullptr, nullptr);
  return bytes;
}

}  // namespace

std::wstring toWide(std::string_view utf8) {
  const int length = static_cast<int>(utf8.size());
  const int size = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, nullptr, 0);
  if (size <= 0) return {};
  std::wstring wide(static_cast<std::size_t>(size), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), size);
  return wide;
}

std::string fromWide(std::wstring_view wide) { return toBytes(wide, CP_UTF8); }

std::string toAnsi(std::string_view utf8) { return toBytes(toWide(utf8), CP_ACP); }

bool fitsAnsi(std::string_view utf8) {
  const std::wstring wide = toWide(utf8);
  BOOL lacks = FALSE;
  WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide.data(), static_cast<int>(wide.size()),
                      nullptr, 0, nullptr, &lacks);
  return lacks == FALSE;
}

}  // namespace zel
