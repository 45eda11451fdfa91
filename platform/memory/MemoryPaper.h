#pragma once

#include <string>
#include <vector>

#include "controls/Drawing.h"
#include "platform/Paper.h"

namespace zy {

/// Paper that keeps what is put on it. All letters are ten points high and five points wide.
class MemoryPaper final : public Paper {
  public:
    std::optional<std::string> PngOf(const std::function<Sheet(const Lettering&)>& make) override;
    Printed Print(std::string_view heading,
                  const std::function<Pages(const Size& page, const Lettering&)>& make) override;

    Size page{11000, 16000};       ///< of the printer, in twips
    Printed answer = Printed::Yes; ///< to whoever prints
    bool isTooLarge = false;       ///< what a PNG is asked of
    std::string title;             ///< under which was printed last
    std::vector<Drawing> printed;  ///< pages
};

} // namespace zy
