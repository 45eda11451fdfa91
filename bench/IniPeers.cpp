#include "IniPeers.h"

// In one encoding: nothing to convert.
#define SI_NO_CONVERSION
#include <SimpleIni.h>
#include <ini.h>

#include <memory>
#include <stdexcept>

namespace zy::bench {
namespace {

int StoreNothing(void*, const char*, const char*, const char*) {
    return 1;
}

std::unique_ptr<CSimpleIniA> SimpleIniOf(const std::string& path) {
    auto file = std::make_unique<CSimpleIniA>();
    if (file->LoadFile(path.c_str()) < 0) {
        throw std::runtime_error("SimpleIni cannot load " + path);
    }
    return file;
}

} // namespace

Peer LoadByInih(const std::string& path) {
    return {"inih, storing nothing", Working([path] {
                if (::ini_parse(path.c_str(), StoreNothing, nullptr) != 0) {
                    throw std::runtime_error("inih cannot load " + path);
                }
            })};
}

Peer LoadBySimpleIni(const std::string& path) {
    return {"SimpleIni", Working([path] { return SimpleIniOf(path); })};
}

} // namespace zy::bench
