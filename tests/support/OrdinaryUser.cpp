#include "support/OrdinaryUser.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace zy::test {
namespace {

constexpr uid_t kRoot = 0;
constexpr uid_t kNobody = 65534;

void Check(int result, const char* call) {
    if (result != 0) {
        throw std::system_error(errno, std::generic_category(), call);
    }
}

void GiveTo(const std::filesystem::path& path, uid_t user) {
    Check(::lchown(path.c_str(), user, static_cast<gid_t>(-1)), "lchown");
}

} // namespace

OrdinaryUser::OrdinaryUser(const std::filesystem::path& folder) : before_(::geteuid()) {
    if (before_ != kRoot) {
        return;
    }
    GiveTo(folder, kNobody);
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        GiveTo(entry.path(), kNobody);
    }
    Check(::seteuid(kNobody), "seteuid");
}

OrdinaryUser::~OrdinaryUser() {
    if (before_ == kRoot && ::seteuid(kRoot) != 0) {
        std::terminate();
    }
}

} // namespace zy::test
