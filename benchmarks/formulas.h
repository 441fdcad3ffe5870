#pragma once

#include <array>
#include <string_view>

namespace zel::bench {

/// Twelve formulas as people type them.
inline constexpr std::array<std::string_view, 12> kFormulas = {
    "x^2/4-2",
    "x^3-3*x^2+2*x-1",
    "raiz2(x^2+1)",
    "(x+1)/(x^2+2)",
    "sen(60*x)",
    "2*sen(x)+cos(3*x)/2",
    "exp(-x^2/10)",
    "ln(x^2+1)",
    "(abs(x))!/1000",
    "raiz3(abs(x))*tan(x)",
    "7*exp(-((x-(3))^2))*cos(30*x)",
    "raiz2((1-(x-(1))^2/(20)^2)*(4)^2)+(2)",
};

/// A sweep as wide as a large screen.
inline constexpr int kSamples = 1920;
inline constexpr double kFirstX = -10;
inline constexpr double kXStep = 20.0 / kSamples;

}  // namespace zel::bench
