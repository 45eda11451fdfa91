#pragma once

#include <functional>
#include <string>

#include "ListLines.h"
#include "UnitsForm.h"

namespace zy::test {

/// The units editor, beside another program that writes to its file.
class UnitsOfTwoPrograms : public UnitsForm {
  protected:
    static constexpr auto kBefore = "A,a\r\nB,b\r\nC,c\r\n";

    UnitsOfTwoPrograms() {
        WriteFile(kBefore);
        Start("@UNITS");
    }

    void WriteFile(std::string_view bytes) { world.files.Put(kUnitsFile, bytes); }
    std::string File() const { return world.files.Get(kUnitsFile).value_or("none"); }
    void ComeToTheWindow() { window().activated.Raise(); }

    /// The next dialog is this one, and the user does that in it.
    template <typename Dialog>
    void ExpectDialog(std::function<void(Dialog&)> user) {
        world.dialogs.ExpectForm([user = std::move(user)](Form& form) { user(dynamic_cast<Dialog&>(form)); });
    }
};

} // namespace zy::test
