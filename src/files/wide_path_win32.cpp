// Programs are kept to 260 letters unless a switch of the whole system is on. Paths that begin with
// "\\?\" are let through, and are then taken as they stand: they must be whole, with no "." or
// "..", so the system makes the whole path first.

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <string_view>

#include "files/temporary_name.h"
#include "files/wide_path.h"

namespace zel {
namespace {

constexpr std::wstring_view kUnbounded = L"\\\\?\\";
constexpr std::wstring_view kUnboundedServer = L"\\\\?\\UNC\\";
constexpr std::wstring_view kServer = L"\\\\";

/// "\\?\" and "\\.\" name what they name already.
bool isDevicePath(std::wstring_view path) {
  return path.starts_with(kUnbounded) || path.starts_with(L"\\\\.\\");
}

}  // namespace

WidePath::WidePath(std::string_view utf8) {
  text_.front() = L'\0';
  constexpr std::size_t kMostBytes = 3 * kSize;
  if (utf8.empty() || utf8.size() > kMostBytes || utf8.find('\0') != std::string_view::npos) return;
  const int length =
      MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, utf8.data(), static_cast<int>(utf8.size()),
                          text_.data(), static_cast<int>(kSize - 1));
  text_[static_cast<std::size_t>(length)] = L'\0';
  if (length > 0) liftBound();
}

void WidePath::liftBound() {
  std::array<wchar_t, kSize> buffer;
  const DWORD length = GetFullPathNameW(text_.data(), kSize, buffer.data(), nullptr);
  std::wstring_view full(buffer.data(), length < kSize ? length : 0);
  if (full.size() + kTemporaryNameSize < MAX_PATH || isDevicePath(full)) return;
  const bool is_on_server = full.starts_with(kServer);
  if (is_on_server) full.remove_prefix(kServer.size());
  const std::wstring_view start = is_on_server ? kUnboundedServer : kUnbounded;
  if (start.size() + full.size() >= kSize) return;
  *std::ranges::copy(full, std::ranges::copy(start, text_.begin()).out).out = L'\0';
}

}  // namespace zel
