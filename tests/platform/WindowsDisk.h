#pragma once

#include <memory>

#include "Disk.h"

namespace zy::test {

std::unique_ptr<Disk> MakeWindowsDisk();

} // namespace zy::test
