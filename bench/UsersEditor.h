#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "BigFile.h"
#include "FileWorld.h"
#include "security/SecurityPage.h"

namespace zy::bench {

/// The users page without a window.
struct Users {
    Users(FileWorld& world, const std::string& file)
        : page(form, state, world.Trace(), world.Get().files, world.Get().recycleBin, world.Get().system,
               world.Get().dialogs, world.Get().codePage) {
        state.gsSecurityFile = file;
        form.SetVisible(true);
        form.fraSecurity.SetVisible(true);
        page.users.LoadSecurityData();
        page.LoadSecurity();
    }

    SettingsForm form;
    SharedState state;
    SecurityPage page;
};

/// The users editor over a folder of the real system. What it loads must not outlive it.
class UsersEditor {
  public:
    static constexpr const BigFile& kFile = kUsersTable;

    /// The folder's path inside the program.
    explicit UsersEditor(std::string_view folder)
        : world_(folder), file_(std::string(folder) + '\\' + kFile.name) {}

    std::unique_ptr<Users> Load() { return std::make_unique<Users>(world_, file_); }
    static int Count(const Users& users) { return users.page.controls.grdSecurity.cells.Rows() - 1; }
    static void Save(Users& users) { users.page.cmdSaveUsers_Click(); }

  private:
    FileWorld world_;
    std::string file_;
};

} // namespace zy::bench
