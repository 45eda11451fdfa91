#pragma once

#include <sys/types.h>

#include <filesystem>

namespace zy::test {

/// Permissions do not bind root. While this lives, tests that root runs act as an ordinary user to whom the
/// folder given and all that is in it belong; those of an ordinary user go on as they are.
class OrdinaryUser {
  public:
    explicit OrdinaryUser(const std::filesystem::path& folder);
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser();

  private:
    uid_t before_;
};

} // namespace zy::test
