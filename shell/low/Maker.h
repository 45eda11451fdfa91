#pragma once

#include <array>
#include <string>
#include <string_view>

namespace zy {

// How to reach the maker of the product. This is the one place to change it.

inline constexpr std::string_view kMakerName = "Norvale";
inline constexpr std::array<std::string_view, 3> kMakerAddress{"Norvale House, 14 Foundry Lane",
                                                               "Marlbrook MB4 7QC", "United Kingdom"};
inline constexpr std::string_view kMakerTelephone = "+44 1632 960140";
inline constexpr std::string_view kMakerFax = "+44 1632 960141";
inline constexpr std::string_view kMakerWebSite = "http://www.norvale.example";
inline constexpr std::string_view kMakerSupport = "support@norvale.example";

} // namespace zy
