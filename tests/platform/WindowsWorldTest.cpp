#include "platform/windows/WindowsWorld.h"

#include <gtest/gtest.h>

#include "platform/memory/MemoryWorld.h"

namespace zy::test {
namespace {

TEST(WindowsWorldTest, GivesItsOwnPartsAndTheScreenGiven) {
    WindowsWorld world;
    MemoryWorld screen;
    const World view = world.Get(
        {.dialogs = screen.dialogs, .help = screen.help, .window = screen.window, .paper = screen.paper});
    EXPECT_EQ(&view.files, &world.files);
    EXPECT_EQ(&view.system, &world.system);
    EXPECT_EQ(&view.traceServers, &world.traceServers);
    EXPECT_EQ(&view.recycleBin, &world.recycleBin);
    EXPECT_EQ(&view.registry, &world.registry);
    EXPECT_EQ(&view.links, &world.links);
    EXPECT_EQ(&view.dialogs, &screen.dialogs);
    EXPECT_EQ(&view.help, &screen.help);
    EXPECT_EQ(&view.window, &screen.window);
    EXPECT_EQ(&view.paper, &screen.paper);
    EXPECT_EQ(&view.codePage, &AnsiCodePage());
}

} // namespace
} // namespace zy::test
