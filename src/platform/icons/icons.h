#pragma once

namespace zel {

/// The places of an icon among the program's resources.
struct IconPaths {
  const char* svg;
  const char* png48;
  const char* png256;
};

inline constexpr IconPaths kProgramIcon{":/zel.svg", ":/zel-48.png", ":/zel-256.png"};
inline constexpr IconPaths kDocumentIcon{":/doc.svg", ":/doc-48.png", ":/doc-256.png"};

/// Makes the resources of the icons known; to be called before the first use, any number of times.
void initIcons();

}  // namespace zel
