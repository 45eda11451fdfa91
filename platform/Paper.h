#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace zy {

// Handed on as they are.
struct Lettering;
struct Pages;
struct Sheet;
struct Size;

enum class Printed { Yes, Cancelled, Failed };

/// What the screen's system can put drawings on beside its windows. What is drawn is made for the letters of
/// each.
class Paper {
  public:
    virtual ~Paper() = default;

    /// The bytes of a PNG file of a sheet, on white, in 144 points an inch; nothing of one that is wider or
    /// higher than 30,000 points.
    virtual std::optional<std::string> PngOf(const std::function<Sheet(const Lettering&)>& make) = 0;
    /// Asks for a printer, and prints the pages that are made for the size of its paper.
    virtual Printed Print(std::string_view title,
                          const std::function<Pages(const Size& page, const Lettering&)>& make) = 0;
};

} // namespace zy
